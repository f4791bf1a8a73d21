#include "letters/labels/own_sheets.h"

#include "platform/drive.h"
#include "platform/storage.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr QStringView kFolder = u"C:\\OVUserFiles\\Labels";
constexpr QStringView kFile = u"C:\\OVUserFiles\\Labels\\sheets.json";
constexpr qint64 kMostBytes = 1024 * 1024;
constexpr qsizetype kLongestName = 60;

using output::LabelSheet;

struct Measure {
    QStringView key;
    double& (*of)(LabelSheet&);
};
/// In twips.
constexpr Measure kMeasures[] = {
    {u"paperWidth", [](LabelSheet& sheet) -> double& { return sheet.paper.width; }},
    {u"paperHeight", [](LabelSheet& sheet) -> double& { return sheet.paper.height; }},
    {u"left", [](LabelSheet& sheet) -> double& { return sheet.layout.left; }},
    {u"top", [](LabelSheet& sheet) -> double& { return sheet.layout.top; }},
    {u"width", [](LabelSheet& sheet) -> double& { return sheet.layout.width; }},
    {u"height", [](LabelSheet& sheet) -> double& { return sheet.layout.height; }},
    {u"pitchX", [](LabelSheet& sheet) -> double& { return sheet.layout.pitchX; }},
    {u"pitchY", [](LabelSheet& sheet) -> double& { return sheet.layout.pitchY; }},
};

LabelSheet sheetOf(const QJsonObject& stored)
{
    LabelSheet sheet;
    sheet.name = stored[u"name"].toString().simplified().left(kLongestName);
    for (const Measure& measure : kMeasures)
        measure.of(sheet) = stored[measure.key].toDouble();
    sheet.layout.columns = stored[u"columns"].toInt();
    sheet.layout.rows = stored[u"rows"].toInt();
    return sheet;
}

QJsonObject storedOf(LabelSheet sheet)
{
    QJsonObject stored{
        {u"name"_s, sheet.name}, {u"columns"_s, sheet.layout.columns}, {u"rows"_s, sheet.layout.rows}};
    for (const Measure& measure : kMeasures)
        stored.insert(measure.key, measure.of(sheet));
    return stored;
}

/// Null when there is no file, or it holds no list.
QJsonDocument readFile(const QString& path)
{
    QFile file(path);
    if (path.isEmpty() || file.size() > kMostBytes || !file.open(QIODevice::ReadOnly))
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(file.read(kMostBytes));
    return document.isArray() ? document : QJsonDocument();
}

} // namespace

QList<LabelSheet> readOwnSheets(const platform::Drive& drive)
{
    QList<LabelSheet> sheets;
    for (const QJsonValue& stored : readFile(drive.local(kFile)).array()) {
        const LabelSheet sheet = sheetOf(stored.toObject());
        const bool isKnown = std::ranges::any_of(sheets,
            [&](const LabelSheet& each) { return each.name.compare(sheet.name, Qt::CaseInsensitive) == 0; });
        if (sheets.size() < kMostOwnSheets && !sheet.name.isEmpty() && !isKnown
            && output::sheetComplaint(sheet).isEmpty())
            sheets << sheet;
    }
    std::ranges::sort(sheets, [](const LabelSheet& a, const LabelSheet& b) {
        return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
    });
    return sheets;
}

QString writeOwnSheets(const platform::Drive& drive, const QList<LabelSheet>& sheets)
{
    QJsonArray stored;
    for (const LabelSheet& sheet : sheets)
        stored << storedOf(sheet);
    drive.ensureFolder(kFolder);
    const QString path = drive.local(kFile);
    if (QFileInfo::exists(path) && readFile(path).isNull()) {
        QFile::remove(path + u".damaged"_s);
        QFile::copy(path, path + u".damaged"_s);
    }
    QSaveFile file(path);
    const QByteArray bytes = QJsonDocument(stored).toJson();
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && platform::commitWhole(file))
        return {};
    return platform::whyNotReplaced(path);
}

} // namespace letters
