#include "widgets/long_text.h"

#include "widgets/theme.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QToolButton>

namespace widgets {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MostLetters = 64 * 1024; ///< of a box, and of each part that is added to it
constexpr qsizetype MostInALine = 2000;
constexpr qsizetype MostOnAButton = 28;
constexpr qsizetype MostInATip = 600;
constexpr qsizetype MostToEdit = 8000; ///< in a line; a longer text is kept as it is
constexpr qsizetype MostToEditInABox = 256 * 1024;
constexpr QChar Ellipsis = u'\u2026';

// Of a control that shows the beginning of a text: what it shows, the text, and how much of it that is.
constexpr auto ShownProperty = "orvaneShownText";
constexpr auto WholeProperty = "orvaneWholeText";
constexpr auto LettersProperty = "orvaneShownLetters";
constexpr auto LockedProperty = "orvaneLockedForLength"; ///< until it has a text that can be edited

QString cut(const QString& text, qsizetype most)
{
    return text.size() > most ? text.first(most) + Ellipsis : text;
}

bool holdsMore(const QWidget* control)
{
    return control->property(WholeProperty).toString().size()
        > control->property(LettersProperty).toLongLong();
}

QString beginning(QWidget* control, const QString& text, qsizetype most)
{
    const bool isLong = text.size() > most;
    const QString shown = cut(text, most);
    control->setProperty(ShownProperty, isLong ? QVariant(shown) : QVariant());
    control->setProperty(WholeProperty, isLong ? QVariant(text) : QVariant());
    control->setProperty(LettersProperty, isLong ? QVariant(most) : QVariant());
    return shown;
}

/// The same with a line end here and there: to lay out one paragraph takes the square of its length.
QString inShortParagraphs(const QString& text)
{
    constexpr qsizetype Longest = 4000;
    QString broken;
    qsizetype length = 0;
    for (const QChar letter : text) {
        length = letter == u'\n' ? 0 : length + 1;
        if (length > Longest) {
            broken += u'\n';
            length = 1;
        }
        broken += letter;
    }
    return broken;
}

void appendPart(QPlainTextEdit* box)
{
    const qsizetype letters = box->property(LettersProperty).toLongLong();
    const QString rest = box->property(WholeProperty).toString().sliced(letters);
    QTextCursor end(box->document());
    end.movePosition(QTextCursor::End);
    end.deletePreviousChar();
    box->appendPlainText(inShortParagraphs(cut(rest, MostLetters)));
    box->setProperty(LettersProperty, letters + std::min(rest.size(), MostLetters));
    box->setProperty(ShownProperty, box->toPlainText());
}

/// The button below a box that shows more of the text, while there is more.
void offerMore(QPlainTextEdit* box)
{
    const QString name = u"cmdMore"_s;
    auto* button = box->findChild<QToolButton*>(name);
    const bool offered = holdsMore(box);
    if (!button && !offered)
        return;
    if (!button) {
        button = new QToolButton(box);
        button->setObjectName(name);
        button->setText(QCoreApplication::translate("widgets", "More"));
        button->setToolTip(QCoreApplication::translate("widgets", "Shows more of this long text"));
        button->setAutoRaise(true);
        box->addScrollBarWidget(button, Qt::AlignRight);
        QObject::connect(button, &QToolButton::clicked, box, [box] {
            appendPart(box);
            offerMore(box);
        });
    }
    // The button stands beside the bar, which therefore has to be there.
    box->setHorizontalScrollBarPolicy(offered ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded);
    button->setVisible(offered);
}

/// A field in which a person may type takes no typing while its text is too long to be laid out as one, so
/// that a save stores that text again. Returns whether the field can only be read.
template <class Field> bool lockWhenLong(Field* field, const QString& text, qsizetype most)
{
    const bool locked = field->property(LockedProperty).toBool();
    if (text.size() > most && !field->isReadOnly()) {
        field->setReadOnly(true);
        field->setProperty(LockedProperty, true);
    } else if (text.size() <= most && locked) {
        field->setReadOnly(false);
        field->setProperty(LockedProperty, {});
    }
    return field->isReadOnly();
}

void showInWindow(QLineEdit* line)
{
    auto* box = new QPlainTextEdit(line);
    box->setWindowFlags(Qt::Dialog);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setReadOnly(true);
    box->setWindowTitle(line->accessibleName());
    showInBox(box, wholeText(line, line->text()));
    box->resize(520, 360);
    box->show();
}

} // namespace

QString tipOf(const QString& stored)
{
    return cut(stored, MostInATip);
}

QString beginning(QWidget* control, const QString& text)
{
    return beginning(control, text, qobject_cast<QAbstractButton*>(control) ? MostOnAButton : MostInALine);
}

QString wholeText(const QWidget* control, const QString& shown)
{
    const QVariant part = control->property(ShownProperty);
    return part.isValid() && part.toString() == shown ? control->property(WholeProperty).toString() : shown;
}

void showInBox(QPlainTextEdit* box, const QString& text)
{
    if (!lockWhenLong(box, text, MostToEditInABox)) {
        beginning(box, {}, MostLetters);
        box->setPlainText(text);
        return offerMore(box);
    }
    const QString shown = beginning(box, text, MostLetters);
    const bool isLong = holdsMore(box);
    box->setPlainText(isLong ? inShortParagraphs(shown) : shown);
    if (isLong)
        box->setProperty(ShownProperty, box->toPlainText());
    offerMore(box);
}

void showInLine(QLineEdit* line, const QString& text)
{
    const bool canOnlyBeRead = lockWhenLong(line, text, MostToEdit);
    const QString shown = beginning(line, canOnlyBeRead ? text : QString(), MostInALine);
    line->setText(canOnlyBeRead ? shown : text);
    line->setCursorPosition(0);
    const QString name = u"more"_s;
    auto* more = line->findChild<QAction*>(name, Qt::FindDirectChildrenOnly);
    if (holdsMore(line) == (more != nullptr))
        return;
    if (more) {
        delete more;
        return;
    }
    more = new QAction(line);
    more->setIcon(icon(u"more"));
    more->setObjectName(name);
    more->setToolTip(QCoreApplication::translate("widgets", "Shows more of this long text"));
    line->addAction(more, QLineEdit::TrailingPosition);
    QObject::connect(more, &QAction::triggered, line, [line] { showInWindow(line); });
}

} // namespace widgets
