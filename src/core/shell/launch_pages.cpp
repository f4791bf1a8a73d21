#include "core/shell/launch_pages.h"

#include <QtGlobal>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr LaunchPage kPages[] = {
    {u"From Add", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - Add"), u"DescAdd"},
    {u"From Edit", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - Edit"), u"DescEdit"},
    {u"From Email", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - Email"), u"DescEmail"},
    {u"From Function", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - Function"), u"DescFunction"},
    {u"From Function Other", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - Function Other"), u"DescAnniv"},
    {u"From Letter", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - Letter"), u"DescLetter"},
    {u"From Print", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - Print"), u"DescPrint"},
    {u"From Setup", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - Setup"), u"DescSetup"},
    {u"From Telephone", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - Telephone"), u"DescTel"},
    {u"From Transfer", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - Transfer"), u"DescTransfer"},
    {u"From View", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - View Main"), u"DescViewMain"},
    {u"From View Other", QT_TRANSLATE_NOOP("shell", "Orvane Contacts - View Other"), u"DescViewOther"},
};

} // namespace

std::span<const LaunchPage> launchPages()
{
    return kPages;
}

const LaunchPage* launchPageOf(QStringView mode)
{
    for (const LaunchPage& page : kPages) {
        if (page.mode == mode)
            return &page;
    }
    return nullptr;
}

QString launchDescriptionSql(const LaunchPage& page)
{
    return u"Select * from ov_cnt_launch where main='"_s + page.description.toString() + u"'"_s;
}

QString launchRowsSql(const LaunchPage& page)
{
    return u"Select * from ov_cnt_Launch where main='"_s + page.mode.toString() + u"'"_s;
}

} // namespace shell
