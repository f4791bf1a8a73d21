#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace core {

/// In which order a contact's stored name is put together.
enum class NameView { FirstLast, LastFirst, Company, FirstLastCompany, LastFirstCompany, CompanyLastFirst };

/// The six views by the words that are stored and shown, in the order of the lists.
QStringList nameViews();
/// The view of a trimmed text; nothing for any other text.
std::optional<NameView> nameViewOf(QStringView text);

struct NameParts {
    QString title;
    QString first;
    QString last;
    QString company;
};

/// The name as it is stored: the trimmed parts joined by one blank. There are no commas and no parentheses in
/// it, although the view's words have them.
QString composeName(NameView view, const NameParts& parts);

/// The name as the label of an entry form shows it while it is typed.
QString nameForLabel(NameView view, const NameParts& parts);

} // namespace core
