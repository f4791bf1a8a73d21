#include "views/field_label.h"

#include "widgets/fields.h"
#include "widgets/long_text.h"

#include <QCoreApplication>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace views {

QLabel* fieldLabel(const QWidget* page, const QString& field)
{
    const auto* control = widgets::child<QWidget>(page, field);
    for (QLabel* label : page->findChildren<QLabel*>()) {
        if (label->buddy() == control)
            return label;
    }
    Q_ASSERT_X(false, "views::fieldLabel", qUtf8Printable(field));
    return nullptr;
}

void showFieldLabel(const QWidget* page, const QString& field, const QString& text)
{
    constexpr qsizetype kMost = 24; // a label widens its page
    QString shown = text.size() > kMost ? text.first(kMost - 1) + QChar(u'\u2026') : text;
    QLabel* label = fieldLabel(page, field);
    // What it is called already keeps its letter.
    if (label->text().remove(u'&') == text)
        return;
    label->setText(shown.replace(u"&"_s, u"&&"_s));
    label->setToolTip(text.size() > kMost ? widgets::tipOf(text) : QString());
    widgets::child<QWidget>(page, field)->setAccessibleName(text);
}

QString workTitle(int number)
{
    return QCoreApplication::translate("views", "Work %1 (elsewhere Work %2)").arg(number).arg(3 - number);
}

} // namespace views
