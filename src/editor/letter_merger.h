#pragma once

#include "platform/word_processor.h"

#include <QHash>

namespace platform {
class Drive;
class Shell;
} // namespace platform

namespace editor {

/// Merges letters by itself, into files that every word processor opens: RTF and OpenDocument. The program
/// that the desktop has for them shows them.
class LetterMerger final : public platform::WordProcessor {
public:
    LetterMerger(const platform::Drive& drive, platform::Shell& shell);

    bool create() override;
    QString setData(QStringView file, const QString& header, const QList<QStringList>& rows) override;
    void typeText(const QString& text) override;
    void typeField(const QString& column) override;
    void typeParagraphs(const formats::RichText& text) override;
    platform::MergeResult run(const QString& folder, const QString& stem) override;
    bool show() override;

private:
    struct Piece {
        QString text = {};
        qsizetype column = -1; ///< of the field that it is
    };
    struct Paragraph {
        QList<Piece> pieces = {}; ///< of a line with fields
        formats::TextParagraph text = {}; ///< of any other
    };
    formats::RichText letterOf(const QStringList& row) const;

    const platform::Drive& m_drive;
    platform::Shell& m_shell;
    QStringList m_columns;
    QList<QStringList> m_rows;
    QList<Paragraph> m_paragraphs;
    bool m_isInLine = false; ///< the last paragraph goes on
    QStringList m_files;
};

} // namespace editor
