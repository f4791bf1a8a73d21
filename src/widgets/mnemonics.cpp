#include "widgets/mnemonics.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>

#include <functional>

namespace widgets {

namespace {

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

class Settling {
public:
    /// What stands on a widget and is not on a page of tabs; the pages are kept for later.
    void settle(QWidget* form, QString used)
    {
        QList<Caption> buttons;
        QList<Caption> others;
        QList<QStackedWidget*> pages;
        collect(form, buttons, others, pages);
        for (const auto& captions : {buttons, others}) {
            for (const Caption& caption : captions) {
                if (const QString text = settled(caption.text, used); text != caption.text)
                    caption.set(text);
            }
        }
        m_used += used;
        for (QStackedWidget* stack : std::as_const(pages)) {
            // The pages of this stack see what is outside, and all of the stacks beside it.
            Settling inside;
            for (int i = 0; i < stack->count(); ++i)
                inside.settle(stack->widget(i), used);
            used += inside.m_used;
            m_used += inside.m_used;
        }
    }

private:
    static void collect(
        QWidget* parent, QList<Caption>& buttons, QList<Caption>& others, QList<QStackedWidget*>& pages)
    {
        for (QObject* child : parent->children()) {
            auto* widget = qobject_cast<QWidget*>(child);
            if (!widget || widget->isWindow())
                continue;
            if (auto* stack = qobject_cast<QStackedWidget*>(widget)) {
                pages += stack;
                continue;
            }
            if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
                buttons += Caption{button->text(), [button](const QString& text) { button->setText(text); }};
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
            collect(widget, buttons, others, pages);
        }
    }

    QString m_used;
};

} // namespace

void settleMnemonics(QWidget* form, const QString& taken)
{
    Settling().settle(form, taken.toLower());
}

QChar mnemonicOf(const QString& text)
{
    const qsizetype mark = markIn(text);
    return mark < 0 ? QChar() : text[mark + 1].toLower();
}

} // namespace widgets
