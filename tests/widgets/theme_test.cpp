#include "widgets/theme.h"

#include <QtTest>
#include <QtWidgets>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace widgets;

namespace {

double brightness(const QColor& colour)
{
    const auto linear
        = [](double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [low, high] = std::minmax({brightness(one), brightness(other)});
    return (high + 0.05) / (low + 0.05);
}

/// The least contrast of what an icon paints in full.
double contrastOf(const QIcon& icon, QIcon::Mode mode, const QColor& ground)
{
    const QImage image = icon.pixmap(QSize(64, 64), 1, mode).toImage();
    double least = image.isNull() ? 0 : 21;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() == 255)
                least = std::min(least, contrast(image.pixelColor(x, y), ground));
        }
    }
    return least;
}

} // namespace

/// Texts and icons can be read in both looks, also where they are highlighted.
class ThemeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void contrasts_data()
    {
        QTest::addColumn<Look>("look");
        QTest::newRow("light") << Look::Light;
        QTest::newRow("dark") << Look::Dark;
    }

    void contrasts()
    {
        QFETCH(Look, look);
        widgets::apply(*qApp, look);
        const QPalette colours = QApplication::palette();
        for (const auto ground : {QPalette::Base, QPalette::Window}) {
            for (const QColor& text : {colours.color(QPalette::PlaceholderText),
                     colours.color(QPalette::Text), quietTextColor(), warningColor()})
                QVERIFY2(contrast(text, colours.color(ground)) >= 4.5, qPrintable(text.name()));
        }
        const QColor highlight = colours.color(QPalette::Highlight);
        QVERIFY(contrast(colours.color(QPalette::HighlightedText), highlight) >= 4.5);
        QStyle* style = QApplication::style();
        for (const QIcon& each : {icon(u"save"), icon(u"folder"),
                 style->standardIcon(QStyle::SP_MessageBoxWarning), style->standardIcon(QStyle::SP_DirIcon),
                 style->standardIcon(QStyle::SP_TitleBarCloseButton)}) {
            QVERIFY(contrastOf(each, QIcon::Normal, colours.color(QPalette::Window)) >= 3);
            QVERIFY(contrastOf(each, QIcon::Selected, highlight) >= 4.5);
        }
    }
};

QTEST_MAIN(ThemeTest)
#include "theme_test.moc"
