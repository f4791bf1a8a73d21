#include "core/merged_category.h"

#include "core/contact_category.h"
#include "core/text_pieces.h"
#include "widgets/fields.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using widgets::child;

namespace core {

void showSubcategory(QWidget* form, bool shown)
{
    auto* list = child<QWidget>(form, u"DtcmbSubCate"_s);
    list->setVisible(shown);
    for (QLabel* label : form->findChildren<QLabel*>()) {
        if (label->buddy() == list)
            label->setVisible(shown);
    }
}

void mergeCategoryLists(QWidget* form, bool merged)
{
    auto* first = child<QWidget>(form, u"DtcmbCate"_s);
    auto* second = child<QWidget>(form, u"DtcmbSubCate"_s);
    const QString category = widgets::textOf(first);
    if (!merged) {
        widgets::setTextOf(first, PickByDash(category, 1));
        widgets::setTextOf(second, PickByDash(category, 2));
    } else if (!category.isEmpty()) {
        widgets::setTextOf(first, shownCategory({category, widgets::textOf(second)}, true));
    }
    showSubcategory(form, !merged);
}

} // namespace core
