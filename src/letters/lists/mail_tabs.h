#pragma once

#include "letters/lists/mail_list_sql.h"

#include <span>

namespace letters {

/// What a person reads on a tab of the mailing lists.
struct MailTabTexts {
    const char* m_caption;
    const char* m_noMembers;
    QStringView column = {}; ///< with the names of the groups; empty for a tab without
    const char* m_heading = nullptr;
    const char* m_noGroups = nullptr;

    QString caption() const;
    QString heading() const; ///< above the groups
    QString noGroups() const; ///< what is said when there are none
    QString noMembers() const;
};

/// In the order of MailTab.
std::span<const MailTabTexts> mailTabs();
const MailTabTexts& textsOf(MailTab tab);

} // namespace letters
