#pragma once

#include "core/context.h"
#include "widgets/field_set.h"

class QWidget;

namespace entry {

/// Gives every combo of an entry form its source; nothing is read before a list drops down. Controls that a
/// form does not have are passed over, since the forms differ in their pages.
void setListSources(QWidget* form, core::Context& context);
/// The titles and the views of a name.
void setFixedLists(QWidget* form);
/// Category and subcategory may have become one entry, or two; what was typed and not saved stays, in the new
/// way.
void followCategorySwitch(QWidget* form, widgets::FieldSet& fields, bool& isMerged, bool merges);
/// After a vocabulary was changed elsewhere: the lists are read again when they are needed.
void refillLists(QWidget* form);

} // namespace entry
