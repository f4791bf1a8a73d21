#include "widgets/mnemonics.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>

#include <functional>

namespace widgets {

namespace {

constexpr auto kTaken = "takenMnemonics"; ///< of a form that was settled

/// Something with a text that may hold a mnemonic.
struct Caption {
    QString text;
    std::function<void(const QString&)> set;
};

qsizetype markIn(const QString& text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&')
            continue;
        if (text[i + 1] != u'&')
            return i;
        ++i; // an "&" that is shown
    }
    return -1;
}

/// The text with its mark before the first letter that is free: the one that has it, the first letters of
/// words, the others. Without a mark when none is free.
QString settled(const QString& text, QString& used)
{
    const qsizetype mark = markIn(text);
    if (mark < 0)
        return text;
    QString plain = text;
    plain.remove(mark, 1);
    QList<qsizetype> places{mark};
    for (const bool wordBegins : {true, false}) {
        for (qsizetype i = 0; i < plain.size(); ++i) {
            if ((i == 0 || plain[i - 1].isSpace()) == wordBegins)
                places += i;
        }
    }
    for (const qsizetype place : std::as_const(places)) {
        const QChar letter = plain[place].toLower();
        const bool usable = letter.unicode() < 128 && letter.isLetterOrNumber();
        if (!usable || used.contains(letter))
            continue;
        used += letter;
        return plain.insert(place, u'&');
    }
    return plain;
}

/// Who chooses first. What is hidden comes last, when the pages have chosen, too.
struct Captions {
    QList<Caption> buttons;
    QList<Caption> others;
    QList<Caption> hidden;
    QList<QStackedWidget*> pages;
};

bool isPushButton(const QAbstractButton* button)
{
    return qobject_cast<const QPushButton*>(button) && !button->isCheckable();
}

void collect(QWidget* parent, bool isHidden, Captions& found)
{
    for (QObject* child : parent->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget || widget->isWindow())
            continue;
        const bool hides
            = isHidden || (widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide));
        QList<Caption>& others = hides ? found.hidden : found.others;
        if (auto* stack = qobject_cast<QStackedWidget*>(widget)) {
            found.pages += stack;
            continue;
        }
        if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
            QList<Caption>& list = hides || !isPushButton(button) ? others : found.buttons;
            list += Caption{button->text(), [button](const QString& text) { button->setText(text); }};
            continue;
        }
        if (auto* label = qobject_cast<QLabel*>(widget); label && label->buddy())
            others += Caption{label->text(), [label](const QString& text) { label->setText(text); }};
        if (auto* group = qobject_cast<QGroupBox*>(widget))
            others += Caption{group->title(), [group](const QString& text) { group->setTitle(text); }};
        if (auto* tabs = qobject_cast<QTabBar*>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                others += Caption{
                    tabs->tabText(i), [tabs, i](const QString& text) { tabs->setTabText(i, text); }};
        }
        collect(widget, hides, found);
    }
}

/// Whoever asks for a letter that is free has it, before others look for another one.
void settleCaptions(const QList<Caption>& captions, QString& used)
{
    QList<Caption> without;
    for (const Caption& caption : captions) {
        const QChar wanted = mnemonicOf(caption.text);
        if (!wanted.isNull() && !used.contains(wanted))
            used += wanted;
        else if (!wanted.isNull())
            without += caption;
    }
    for (const Caption& caption : std::as_const(without))
        caption.set(settled(caption.text, used));
}

/// Settles a widget and its pages; what comes back is used on any of them.
QString settleIn(QWidget* form, QString used)
{
    Captions found;
    collect(form, false, found);
    settleCaptions(found.buttons + found.others, used);
    for (QStackedWidget* stack : std::as_const(found.pages)) {
        // The pages of a stack are seen with what is outside, and with those of the stacks beside it.
        QString inside;
        for (int i = 0; i < stack->count(); ++i)
            inside += settleIn(stack->widget(i), used);
        used += inside;
    }
    settleCaptions(found.hidden, used);
    return used;
}

} // namespace

void settleMnemonics(QWidget* form, const QString& taken)
{
    form->setProperty(kTaken, taken);
    settleIn(form, taken.toLower());
}

void setCaption(QLabel* label, const QString& text)
{
    label->setText(text);
    for (QWidget* form = label; form; form = form->parentWidget()) {
        if (const QVariant taken = form->property(kTaken); taken.isValid())
            return settleMnemonics(form, taken.toString());
    }
}

QChar mnemonicOf(const QString& text)
{
    const qsizetype mark = markIn(text);
    return mark < 0 ? QChar() : text[mark + 1].toLower();
}

} // namespace widgets
