#pragma once

#include "output/labels/label_report.h"

#include <QString>

/// The statements of the mailing lists. Apostrophes in the names of lists are doubled.
namespace letters {

/// The kinds of groups whose members can be listed, in the order of their tabs.
enum class MailTab { Lists, Contacts, Family, Associations, Handy, Groups, Parties };
inline constexpr int kMailTabs = 7;

/// Whether the tab has groups to choose from.
bool hasGroups(MailTab tab);
/// The groups of a tab, their names in the first column.
QString mailGroupsSql(MailTab tab);
/// What is chosen on a tab.
struct MailGroup {
    MailTab tab = MailTab::Lists;
    QString name = {}; ///< of the group
    qint64 id = 0; ///< of groups that have one
};
/// Which contacts the tabs of the book and of the family list.
struct MailFilter {
    bool priority1 = false;
    bool priority2 = false;
    QString city = {}; ///< the town of one's own; empty for all
    QString relation = {}; ///< of the family; "All" or empty for all
};

/// The members, as the grid lists them. Rows of some tabs have no id.
QString mailMembersSql(const MailGroup& group, const MailFilter& filter);
/// Whether that statement is read in the other way of the engine.
bool isReadAsPattern(MailTab tab, const MailFilter& filter);
/// A bare condition that holds for the members, for statements about those of one name.
QString mailMembersCondition(const MailGroup& group, const MailFilter& filter);

/// The members with an address, for labels and lists on paper.
/// @param listed the statement of the grid, from which the contacts of the book are printed
/// @param onlySelected of them, those that bear the mark
QString printedMembersSql(
    const MailGroup& group, output::AddressSet address, bool onlySelected, const QString& listed = {});
/// The same members for a file: the name and the whole address.
QString savedMembersSql(const MailGroup& group, const MailFilter& filter, output::AddressSet address);
/// Their ids, by name.
QString memberIdsSql(const MailGroup& group, const MailFilter& filter);

QString defaultTownSql();
QString relationsSql();

/// The contacts from which a list is made, by what they have in common; "All" or nothing is no condition.
struct AddFilter {
    QString first = {};
    QString last = {};
    QString city = {};
    QString category = {};
};
QString addableContactsSql(const AddFilter& filter);
QString firstNamesSql();
QString lastNamesSql();
QString citiesSql();
QString categoriesSql();

QString clearSelectionSql();
QString selectContactSql(qint64 id, bool selected);

} // namespace letters
