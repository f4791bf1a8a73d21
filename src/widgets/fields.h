#pragma once

#include <QString>
#include <QWidget>

namespace widgets {

/// The text that a control shows: line, date box, combo, memo, label, and the caption of a button. It is the
/// whole text, also where a part of it is shown.
QString textOf(const QWidget* control);
/// Shows a text in such a control, as if it had been loaded: no key filter applies. Of a text without
/// measure, controls that can only be read show the beginning, and more of it when asked to.
void setTextOf(QWidget* control, const QString& text);
/// Blanks a control; a check box is unchecked, a radio button is left alone.
void clear(QWidget* control);

/// The control of that name on a page. It must be there.
template <class T> T* child(const QWidget* page, const QString& name)
{
    T* found = page->findChild<T*>(name);
    Q_ASSERT_X(found, "widgets::child", qUtf8Printable(name));
    return found;
}

} // namespace widgets
