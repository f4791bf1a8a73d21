#pragma once

#include "views/search/search_clauses.h"

#include <QString>
#include <QStringList>

#include <span>

namespace views {

enum class TreeKind { Category, Location };

/// What the combos of the advanced search hold, each as it was chosen or typed; "All" or a blank text is no
/// condition.
struct TreeChoices {
    QString priority = {}; ///< also "1&2", "2&3", "3&4"
    QString country = {};
    QString category = {};
    QString subcategory = {};
    QString city = {};
    QString company = {};
    QString first = {};
    QString mainName = {}; ///< of the contact, the family or the alternate contact
    QString last = {};
    QString maiden = {};
    QString areaCode = {};
    QString product = {};
    QString relation = {};
    QString status = {};
};

/// The where clause with its leading word, or nothing.
QString treeChoicesClause(const TreeChoices& choices);

/// A statement for the result grid, the headings over its rows, and the column under each heading where they
/// do not pair off in order.
struct ResultQuery {
    QString sql;
    QStringView headings;
    QStringList columns = {};
};

/// The contacts that a where clause selects.
ResultQuery foundQuery(const QString& whereClause, ViewBy view);
/// The contacts of a node: the path of the root is empty.
ResultQuery nodeQuery(TreeKind kind, const QStringList& path, ViewBy view);
/// The one contact of a thumbnail.
ResultQuery thumbnailQuery(qint64 id, ViewBy view);

/// The texts of the root and the key of a node, which is its path joined with "-". Since a category may have
/// a dash in its name, nothing is ever cut out of a key again: nodes carry their path.
QString treeRootText(TreeKind kind);
QString treeNodeKey(const QStringList& path);
/// How many levels there are below the root.
int treeDepth(TreeKind kind);
/// The statement behind the branches of a node that is no leaf.
QString treeBranchesSql(TreeKind kind, const QStringList& path);

/// The ids of the contacts that have an empty category or place. An index holds them: none, as a rule.
QString unclassifiedSql();
/// Writes "Undefined" into what is empty of the contacts with these ids: all in one go would hold the window.
QStringList normalisingStatements(qint64 first, qint64 last);

/// The lists behind the combos of the advanced search, by the combo's name.
struct TreeList {
    QStringView combo;
    QStringView sql;
    QStringView restrictedBy = {}; ///< the combo whose choice narrows the list
    QStringView restrictedSql = {};
};
std::span<const TreeList> treeLists();
QString treeListSql(const TreeList& list, const QString& restriction);

/// All contacts in the order of the thumbnails.
QString picturesSql();

} // namespace views
