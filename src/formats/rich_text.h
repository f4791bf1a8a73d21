#pragma once

#include <QList>
#include <QString>

/// A text with its looks, as letters and mail have it and as files of word processors hold it. Between an
/// editor, a report and a file it travels as this value; none of them knows the others.
namespace formats {

/// How letters of a run look. What is not set is as the paragraph around it.
struct CharStyle {
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckOut = false;
    QString family = {};
    double points = 0; ///< 0 for the size of the text around it
    quint32 color = 0; ///< 0xAARRGGBB; 0 for the colour of the text around it

    bool operator==(const CharStyle&) const = default;
};

struct TextRun {
    QString text; ///< "\t" is a tab, "\n" a new line of the same paragraph
    CharStyle style = {};

    bool operator==(const TextRun&) const = default;
};

struct TextParagraph {
    enum class Align { Left, Center, Right, Justified };
    enum class List { None, Bullets, Numbers };

    QList<TextRun> runs = {};
    Align align = Align::Left;
    List list = List::None;
    int indent = 0; ///< steps from the left

    QString plain() const;
    bool operator==(const TextParagraph&) const = default;
};

struct RichText {
    QList<TextParagraph> paragraphs = {};

    static RichText fromPlain(const QString& text);
    /// Paragraphs with "\n" between. Lists have no marks in it.
    QString plain() const;
    /// Whether the plain text says less than this one.
    bool isFormatted() const;
    bool isEmpty() const;
    /// Another text behind this one, beginning with a paragraph of its own.
    void append(const RichText& text);

    bool operator==(const RichText&) const = default;
};

} // namespace formats
