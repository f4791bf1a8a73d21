#pragma once

#include "formats/rich_text.h"

#include <QStringList>

namespace platform {

/// What came of a merge.
struct MergeResult {
    QStringList files = {}; ///< of this computer, the one to be shown first
    QString whyNot = {}; ///< a piece of a sentence, when nothing was made

    explicit operator bool() const { return whyNot.isEmpty(); }
};

/// A word processor that makes one letter a reader from a document with fields and a file of rows. Folders
/// and files are named as the program writes paths.
class WordProcessor {
public:
    WordProcessor() = default;
    WordProcessor(const WordProcessor&) = delete;
    WordProcessor& operator=(const WordProcessor&) = delete;
    virtual ~WordProcessor() = default;

    /// Begins a document; what was not merged of the one before is forgotten. False when there is nothing to
    /// write with.
    virtual bool create() = 0;
    /// Writes the rows as a file, whose columns the fields of the document stand for.
    /// @param header line of the file; the names in it are those of the fields, without blanks round them
    /// @return a piece of a sentence: why the file could not be written; empty when it was
    virtual QString setData(QStringView file, const QString& header, const QList<QStringList>& rows) = 0;
    /// Goes on with a text; "\n" begins another paragraph.
    virtual void typeText(const QString& text) = 0;
    virtual void typeField(const QString& column) = 0;
    /// Paragraphs with their looks.
    virtual void typeParagraphs(const formats::RichText& text) = 0;
    /// One document of all letters, each on a page of its own.
    /// @param stem name of its files, without an ending
    virtual MergeResult run(const QString& folder, const QString& stem) = 0;
    /// Shows what was merged last; false when no program could be found for it.
    virtual bool show() = 0;
};

} // namespace platform
