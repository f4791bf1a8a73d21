#include "core/setup/setup_settings.h"

#include "core/text_pieces.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace setup {

namespace {

constexpr Switch kSwitches[] = {
    {u"Check1", QT_TRANSLATE_NOOP("setup", "Copy &e-mails to the journal"), u"emiltojrnl",
        u"Update CNTB_SETUP set emiltojrnl = "},
    {u"Check2", QT_TRANSLATE_NOOP("setup", "Copy &letters to the journal"), u"ltrtojrnl",
        u"Update cntb_setup set ltrtojrnl="},
    {u"Check4", QT_TRANSLATE_NOOP("setup", "Copy &associations to the journal"), u"AssoToJrnl",
        u"Update cntb_setup set AssoToJrnl="},
    {u"chkAddFav", QT_TRANSLATE_NOOP("setup", "Add &web address to the favourites"), u"AddFav",
        u"Update cntb_setup set AddFav="},
    {u"chkUpdOutlook", QT_TRANSLATE_NOOP("setup", "&Update the mail client's contacts"), u"UpdOutllook",
        u"Update cntb_setup set UpdOutllook="},
    {u"chkDialerCity", QT_TRANSLATE_NOOP("setup", "Use the &home city to dial"), u"DialerCity",
        u"update cntb_setup set DialerCity="},
    {u"ChkMerge", QT_TRANSLATE_NOOP("setup", "Select Category and Subcategory to appear as Merged Field"),
        u"contmerge", u"update ov_setup set contmerge="},
};

constexpr StoreRule kRules[] = {
    {1, u"Copy", QT_TRANSLATE_NOOP("setup", "Copy Letters to \\OVUserfiles")},
    {2, u"Move", QT_TRANSLATE_NOOP("setup", "Move Letters to \\OVUserfiles")},
    {3, u"Link", QT_TRANSLATE_NOOP("setup", "Leave Letters where they are")},
};

constexpr GridFont kFonts[] = {
    {u"Small", QT_TRANSLATE_NOOP("setup", "Small"), 8},
    {u"Medium", QT_TRANSLATE_NOOP("setup", "Medium"), 10},
    {u"Large", QT_TRANSLATE_NOOP("setup", "Large"), 12},
};

QString joined(const jet::Recordset& settings, QStringView category, QStringView subcategory)
{
    const QString first = settings.textOrEmpty(category);
    const QString second = settings.textOrEmpty(subcategory);
    return first.isEmpty() && second.isEmpty() ? QString() : first + u'-' + second;
}

/// The two columns of a joined entry, and what stands in them when its pieces are empty.
struct JournalColumns {
    QStringView category;
    QStringView subcategory;
    QStringView categoryWhenEmpty;
    QStringView subcategoryWhenEmpty;
    QString Defaults::*entry;
};
// Kept: what is stored for associations without a category is "Asso", not the word that their reader takes.
constexpr JournalColumns kJournal[] = {
    {u"ltrcat", u"ltrsub", u"Letters", u"Sent", &Defaults::letters},
    {u"emilcat", u"emilsub", u"Emails", u"Sent", &Defaults::mails},
    {u"assojcat", u"assojscat", u"Asso", u"Meetings", &Defaults::associations},
};

QString pieceOr(const QString& entry, int piece, QStringView whenEmpty)
{
    const QString text = core::PickByDash(entry, piece).trimmed();
    return text.isEmpty() ? whenEmpty.toString() : text;
}

} // namespace

std::span<const Switch> switches()
{
    return kSwitches;
}

const Switch& switchOf(QStringView control)
{
    const auto* found = std::find_if(std::begin(kSwitches), std::end(kSwitches),
        [control](const Switch& each) { return each.control == control; });
    Q_ASSERT(found != std::end(kSwitches));
    return *found;
}

QString switchRowSql(const Switch& which)
{
    return which.statement.contains(u"ov_setup") ? u"select ContMerge from ov_setup"_s : settingsSql();
}

QString switchSql(const Switch& which, bool on)
{
    return which.statement.toString() + (on ? u'1' : u'0');
}

QString companySuffixSql(const QString& suffix)
{
    return u"Update cntb_setup set cmpnySuffix ='"_s + suffix + u'\'';
}

QString settingsSql()
{
    return u"select * from cntb_setup"_s;
}

QString journalCategoriesSql()
{
    return u"select distinct CATEG1 + '-' + Categ2 as Cat from OVS_CHOICES"_s;
}

Defaults defaultsOf(const jet::Recordset& settings)
{
    Defaults defaults;
    defaults.category = settings.textOrEmpty(u"categ1");
    defaults.subcategory = settings.textOrEmpty(u"categ2");
    defaults.priority = settings.textOrEmpty(u"Priority");
    for (const JournalColumns& row : kJournal)
        defaults.*row.entry = joined(settings, row.category, row.subcategory);
    defaults.cardFolder = settings.textOrEmpty(u"VCFPath");
    return defaults;
}

bool saveDefaults(jet::Database& data, const Defaults& defaults)
{
    jet::Recordset settings = data.openRecordset(u"select * from CNTB_SETUP"_s);
    if (settings.hasRow())
        settings.edit();
    else
        settings.addNew();
    settings.set(u"categ1", defaults.category);
    settings.set(u"categ2", defaults.subcategory);
    settings.set(u"Priority", defaults.priority);
    for (const JournalColumns& row : kJournal) {
        settings.set(row.category, pieceOr(defaults.*row.entry, 1, row.categoryWhenEmpty));
        settings.set(row.subcategory, pieceOr(defaults.*row.entry, 2, row.subcategoryWhenEmpty));
    }
    settings.set(u"VCFPath", defaults.cardFolder);
    return settings.update();
}

QString dialPrefixesSql(const DialPrefixes& prefixes)
{
    return u"update cntb_setup set prefix2 ='%1',prefix1 ='%2',pbx ='%3',prefix3='%4'"_s.arg(
        prefixes.second, prefixes.first, prefixes.exchange, prefixes.third);
}

std::span<const StoreRule> storeRules()
{
    return kRules;
}

QString storeRuleSql(const StoreRule& rule)
{
    return u"update cntb_setup set cpytoml="_s + QString::number(rule.stored);
}

std::span<const GridFont> gridFonts()
{
    return kFonts;
}

// The other programs of the suite have rows of their own.
bool saveGridFont(jet::Database& data, int size)
{
    jet::Recordset fonts = data.openRecordset(u"Select * from OV_GridFont"_s);
    if (fonts.findFirst(u"Proj='Contacts'"))
        fonts.edit();
    else
        fonts.addNew();
    fonts.set(u"Proj", u"Contacts"_s);
    fonts.set(u"Frm", QString(u""_s));
    fonts.set(u"contr", u"Grid"_s);
    fonts.set(u"Font", size);
    return fonts.update();
}

} // namespace setup
