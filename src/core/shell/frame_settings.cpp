#include "core/shell/frame_settings.h"

#include "jet/date_text.h"
#include "platform/drive.h"

#include <array>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr std::array<QStringView, 16> kUserFolders{
    u"C:\\OVUserFiles\\",
    u"C:\\OVUserFiles\\HandHelds\\",
    u"C:\\OVUserFiles\\Main\\",
    u"C:\\OVUserFiles\\Notes Diary\\",
    u"C:\\OVUserFiles\\Letters\\",
    u"C:\\OVUserFiles\\Music\\",
    u"C:\\OVUserFiles\\Photos\\",
    u"C:\\OVUserFiles\\Others\\",
    u"C:\\OVUserFiles\\Exported Files\\",
    u"C:\\OVUserFiles\\Exported Files\\Html\\",
    u"C:\\OVUserFiles\\Exported Files\\RTF\\",
    u"C:\\OVUserFiles\\Exported Files\\PDF\\",
    u"C:\\OVUserFiles\\Exported Files\\TableHtml\\",
    u"C:\\OVUserFiles\\Exported Files\\Excel\\",
    u"C:\\OVUserFiles\\Exported Files\\Money\\",
    u"C:\\OVUserFiles\\Exported Files\\Emails\\",
};

QString selectionInForce(jet::Database& data)
{
    const auto filters = data.openRecordset(u"select * from cnt_filter order by id asc"_s);
    const QString sql = filters.textOrEmpty(u"sql");
    return sql.isEmpty() || sql == u"1" ? u"select * from cnt_main"_s : sql;
}

int gridFontSize(jet::Database& data)
{
    const auto row = data.openRecordset(u"select font from OV_GridFont where Proj='Contacts'"_s);
    const qint64 size = row.number(u"font");
    return size > 0 && size < 100 ? int(size) : 8;
}

QString photoStoreMode(jet::Database& data)
{
    jet::Recordset setup = data.openRecordset(u"select * from cntb_setup"_s);
    if (setup.isValid() && setup.isEmpty()) {
        const jet::Upkeep byItself(data);
        setup.addNew();
        setup.update();
        setup = data.openRecordset(u"select * from cntb_setup"_s);
    }
    switch (setup.number(u"cpytoml")) {
    case 1: return u"Copy"_s;
    case 2: return u"Move"_s;
    default: return u"Link"_s;
    }
}

} // namespace

bool isBusinessEdition(jet::Database& data)
{
    return data.openRecordset(u"select * from ov_setup"_s).flag(u"Business");
}

FrameSettings readFrameSettings(jet::Database& data, core::SharedState& shared)
{
    const auto setup = data.openRecordset(u"select * from ov_setup"_s);
    shared.ContMerge = setup.flag(u"contmerge");
    shared.NationalMode = setup.flag(u"national");
    shared.CurrentSql = selectionInForce(data);
    shared.GridFontSize = gridFontSize(data);
    shared.PhotoStoreMode = photoStoreMode(data);
    return {setup.flag(u"Business")};
}

std::span<const QStringView> userFolders()
{
    return kUserFolders;
}

void makeUserFolders(const platform::Drive& drive)
{
    for (const QStringView folder : kUserFolders) {
        if (!drive.exists(folder))
            drive.ensureFolder(folder);
    }
}

QString takeDeferredKey(jet::Database& data)
{
    const auto setup = data.openRecordset(u"select * from OV_SETUP"_s);
    const QString key = setup.textOrEmpty(u"key").toLower();
    // This runs each time the window comes to the front, also over a book that can only be read.
    if (!key.isEmpty()) {
        const jet::Upkeep byItself(data);
        data.execute(u"Update ov_setup set key=''"_s);
    }
    return key;
}

QString dueMailsSql(QDate today)
{
    return u"Select * from time_email where date <=#"_s + jet::formatDate(today, u"dd-mmm-yyyy")
        + u"# and confirm=true"_s;
}

} // namespace shell
