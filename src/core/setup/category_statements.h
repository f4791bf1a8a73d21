#pragma once

#include "core/contact_category.h"
#include "jet/database.h"

#include <QStringList>

/// The categories of the book: what lists them, and what changes them together with the contacts.
namespace setup {

QString categoryListSql();
QString treeCategoriesSql();
QString treeSubcategoriesSql(const QString& category);
/// Subcategories to which contacts can be moved.
QString targetSubcategoriesSql(const QString& category);
/// Those that the program comes with, joined by "-".
QString factoryCategoriesSql();

QString renameQuestion(const core::Category& from, const core::Category& to);
/// What changes the contacts and what hangs on them, in this order.
QStringList renameStatements(const core::Category& from, const core::Category& to);

enum class DeleteWay {
    NameOnly, ///< the contacts keep it
    MoveContacts,
    DeleteContacts,
};
QStringList deleteStatements(DeleteWay way, const core::Category& category, const core::Category& target);

/// Whether another category on offer has these names.
bool isCategoryKnown(jet::Database& data, const core::Category& category, qint64 exceptId);
/// Adds a row and gives its key; 0 when it was not stored.
qint64 addCategory(jet::Database& data, const core::Category& category);
/// Each is one step, which is stored as a whole.
bool renameCategory(jet::Database& data, qint64 id, const core::Category& from, const core::Category& to);
bool deleteCategory(
    jet::Database& data, DeleteWay way, const core::Category& category, const core::Category& target);

} // namespace setup
