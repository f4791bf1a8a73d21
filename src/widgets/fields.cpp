#include "widgets/fields.h"

#include "widgets/date_box.h"
#include "widgets/filled_combo.h"
#include "widgets/long_text.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace widgets {

using namespace Qt::StringLiterals;

namespace {

/// Lines end in CR LF in all stored texts.
QString storedLines(QString text)
{
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\n', u"\r\n"_s);
}

/// Typing is bounded by the column, but a longer text that the book already holds must not be cut: it would
/// be stored so.
void makeRoomFor(QWidget* control, const QString& text)
{
    auto* combo = qobject_cast<QComboBox*>(control);
    auto* line = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(control);
    if (line && text.size() > line->maxLength())
        line->setMaxLength(int(text.size()));
}

} // namespace

QString textOf(const QWidget* control)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(control))
        return wholeText(line, line->text());
    if (const auto* combo = qobject_cast<const QComboBox*>(control))
        return combo->isEditable() ? wholeText(combo->lineEdit(), combo->currentText())
                                   : combo->currentText();
    if (const auto* memo = qobject_cast<const QPlainTextEdit*>(control))
        return storedLines(wholeText(memo, memo->toPlainText()));
    if (const auto* memo = qobject_cast<const QTextEdit*>(control))
        return storedLines(memo->toPlainText());
    if (const auto* label = qobject_cast<const QLabel*>(control))
        return wholeText(label, label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(control))
        return wholeText(button, button->text().replace(u"&&"_s, u"&"_s));
    Q_ASSERT_X(false, "widgets::textOf", "a control without a text");
    return {};
}

void setTextOf(QWidget* control, const QString& text)
{
    makeRoomFor(control, text);
    if (auto* line = qobject_cast<QLineEdit*>(control)) {
        showInLine(line, text);
    } else if (auto* filled = qobject_cast<FilledCombo*>(control)) {
        if (filled->isEditable())
            showInLine(filled->lineEdit(), text);
        else
            filled->setText(text);
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        if (combo->isEditable())
            combo->setEditText(text);
        else
            combo->setCurrentIndex(combo->findText(text));
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
        showInBox(plain, text);
    } else if (auto* memo = qobject_cast<QTextEdit*>(control)) {
        memo->setPlainText(text);
    } else if (auto* label = qobject_cast<QLabel*>(control)) {
        label->setText(beginning(label, text));
    } else if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        // A name's "&" is no mnemonic, and a long one must not widen the window.
        button->setText(beginning(button, text).replace(u"&"_s, u"&&"_s));
    } else {
        Q_ASSERT_X(false, "widgets::setTextOf", "a control without a text");
    }
}

void clear(QWidget* control)
{
    if (auto* check = qobject_cast<QCheckBox*>(control))
        check->setChecked(false);
    else if (!qobject_cast<QAbstractButton*>(control))
        setTextOf(control, {});
}

} // namespace widgets
