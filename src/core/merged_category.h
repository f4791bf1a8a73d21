#pragma once

class QWidget;

namespace core {

/// Shows the two category lists of an entry form, `DtcmbCate` and `DtcmbSubCate`, as the setting wants them:
/// as one list of entries joined by "-", or as two.
void showSubcategory(QWidget* form, bool shown);
/// The same for a form on which something stands, which stays, in the new way.
void mergeCategoryLists(QWidget* form, bool merged);

} // namespace core
