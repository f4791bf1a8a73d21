#pragma once

#include "output/report/report.h"

#include <QFont>
#include <QStringList>

#include <array>

namespace output {

/// The fonts of a report and how much room texts take in them. Sizes do not depend on a screen or a printer:
/// a font is as many units high as it has twips.
class TextMeasure {
public:
    explicit TextMeasure(double scale);

    const QFont& font(TextRole role) const { return face(role).font; }
    double lineHeight(TextRole role) const { return face(role).lineHeight; }
    double ascent(TextRole role) const { return face(role).ascent; }
    double width(const QString& text, TextRole role) const;
    /// The font of a role with the looks of a run.
    QFont styled(TextRole role, const formats::CharStyle& style) const;
    /// The lines that a text takes in a column; "\n" begins a new one, words that are too long are broken.
    QStringList wrap(const QString& text, TextRole role, double width) const;

private:
    static constexpr int kRoles = 6;
    static constexpr int kKnown = 0x250; ///< Latin letters, measured once

    struct Face {
        QFont font;
        double lineHeight = 0;
        double ascent = 0;
        std::array<float, kKnown> advances{};
    };
    const Face& face(TextRole role) const { return m_faces[static_cast<std::size_t>(role)]; }
    static bool surelyFits(QStringView text, const Face& face, double width);
    static void wrapParagraph(const QString& text, const Face& face, double width, QStringList& lines);

    std::array<Face, kRoles> m_faces;
};

} // namespace output
