#pragma once

#include <QHash>
#include <QString>

#include <optional>
#include <span>

namespace views {

/// One list of a filter, which offers the values of a column and adds a condition for the value chosen.
struct FilterList {
    QStringView control;
    QStringView sql; ///< the values on offer; "All" stands before them
    QStringView condition; ///< "%1" is the value
    QStringView laterCondition = {}; ///< behind another one, where it differs
};

/// In the order of the conditions.
std::span<const FilterList> commonFilterLists();
std::span<const FilterList> tabFilterLists();

/// The values chosen, by control. A control that is missing stands on "All".
using FilterChoices = QHash<QString, QString>;

/// The where clause with its leading word; empty when nothing is asked for. A keyword is looked for in every
/// main field, and the choices then do not count.
QString commonFilterClause(const QString& keyword, const FilterChoices& choices);
QString tabFilterClause(const FilterChoices& choices);

/// The values that a list of the tab filter offers: countries are those of the region chosen, cities those of
/// the country chosen.
QString tabFilterListSql(const FilterList& list, const FilterChoices& choices);

enum class FilterForm { Common, Tab };

/// What the screen that asked for a filter gets; nothing for a name that takes no filter.
std::optional<QString> deliveredFilter(
    FilterForm form, const QString& callerForm, const QString& whereClause);

} // namespace views
