#include "core/setup/category_statements.h"

using core::Category;
using namespace Qt::StringLiterals;

namespace setup {

namespace {

QString bothColumns(const Category& to, const Category& from)
{
    return u" set category1 = '%1' ,category2 = '%2' where category1 = '%3' and category2 = '%4'"_s.arg(
        to.category, to.subcategory, from.category, from.subcategory);
}

/// A category may stand alone; its rows then hold nothing in the second column, or "".
QString ofCategory(const Category& category)
{
    const QString where = u" where [CATEGORY1]='%1' and "_s.arg(category.category);
    return where
        + (category.subcategory.isEmpty() ? u"([CATEGORY2] is null or [CATEGORY2]='')"_s
                                          : u"[CATEGORY2]='%1'"_s.arg(category.subcategory));
}

} // namespace

QString categoryListSql()
{
    return u"select * from cntb_categories where category1 <> null and deleted = false order by category1 "_s;
}

QString treeCategoriesSql()
{
    return u"Select distinct Category1 from cntb_Categories where [DELETED] = false and category1 is not null and category1 <>'' order by category1"_s;
}

QString treeSubcategoriesSql(const QString& category)
{
    return u"Select distinct category2,catid from cntb_Categories where [DELETED] = false and category2 is not null and category2 <>'' and category1='"_s
        + category + u"' order by category2"_s;
}

QString targetSubcategoriesSql(const QString& category)
{
    return u"Select CATEGORY2 from CNTB_CATEGORIES where [DELETED] = false and [CATEGORY1]='"_s + category
        + u"' group by CATEGORY2 order by CATEGORY2"_s;
}

QString factoryCategoriesSql()
{
    return u"select distinct Category + '-' + Subcat as Cat from OV_DEFCAT where PROJECT='Contacts'"_s;
}

QString renameQuestion(const Category& from, const Category& to)
{
    QString question = u"This process will globally change all records  with category "_s + from.category
        + u" to "_s + to.category;
    if (from.subcategory != to.subcategory)
        question += u" and Sub Category "_s + from.subcategory + u" to "_s + to.subcategory;
    return question + u" Do you wish to continue? "_s;
}

// Kept: phone lists and letters follow the category alone, so those of all its subcategories change.
QStringList renameStatements(const Category& from, const Category& to)
{
    const QString byCategory
        = u" set category1 = '%1'  where category1 = '%2' "_s.arg(to.category, from.category);
    return {u"update cnt_main"_s + bothColumns(to, from), u"update cnt_phlist"_s + byCategory,
        u"update cnt_letters"_s + byCategory, u"update cnt_filter"_s + bothColumns(to, from),
        u"update cnt_emails"_s + bothColumns(to, from)};
}

QStringList deleteStatements(DeleteWay way, const Category& category, const Category& target)
{
    const QString nameGoes = u"Delete from CNTB_CATEGORIES"_s + ofCategory(category);
    switch (way) {
    case DeleteWay::NameOnly:
        return {u"Update CNTB_CATEGORIES set [DELETED] = true"_s + ofCategory(category)};
    case DeleteWay::MoveContacts:
        return {u"Update CNT_MAIN set [CATEGORY1]='%1',[CATEGORY2]='%2'"_s.arg(
                    target.category, target.subcategory)
                + ofCategory(category),
            nameGoes};
    case DeleteWay::DeleteContacts: return {u"Delete from CNT_MAIN"_s + ofCategory(category), nameGoes};
    }
    return {};
}

bool isCategoryKnown(jet::Database& data, const Category& category, qint64 exceptId)
{
    const jet::Recordset same = data.openRecordset(
        u"select catid from CNTB_CATEGORIES"_s + ofCategory(category) + u" and [DELETED] = false"_s);
    for (int row = 0; row < same.count(); ++row) {
        if (same.valueAt(row, 0).toLongLong() != exceptId)
            return true;
    }
    return false;
}

qint64 addCategory(jet::Database& data, const Category& category)
{
    jet::Recordset rows = data.openRecordset(u"select * from cntb_categories"_s);
    rows.addNew();
    rows.set(u"category1", category.category);
    rows.set(u"category2", category.subcategory);
    return rows.update() ? rows.lastAddedKey() : 0;
}

bool renameCategory(jet::Database& data, qint64 id, const Category& from, const Category& to)
{
    jet::Recordset row
        = data.openRecordset(u"select * from cntb_categories where catid="_s + QString::number(id));
    if (!row.hasRow())
        return false;
    jet::Batch batch(data);
    for (const QString& sql : renameStatements(from, to)) {
        if (!data.execute(sql)) {
            batch.rollBack();
            return false;
        }
    }
    row.edit();
    row.set(u"category1", to.category);
    row.set(u"category2", to.subcategory);
    row.update();
    return batch.commit();
}

bool deleteCategory(jet::Database& data, DeleteWay way, const Category& category, const Category& target)
{
    jet::Batch batch(data);
    for (const QString& sql : deleteStatements(way, category, target)) {
        if (!data.execute(sql)) {
            batch.rollBack();
            return false;
        }
    }
    return batch.commit();
}

} // namespace setup
