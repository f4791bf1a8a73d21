#include "platform/shell_rules.h"

#include <algorithm>
#include <array>

#include <QFileInfo>
#include <QMimeDatabase>
#include <QUrlQuery>

#include "platform/drive.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int maxAddressLength = 8192;

constexpr std::array runnableTypes{u"application/x-executable", u"application/x-sharedlib",
    u"application/x-desktop", u"application/x-shellscript", u"application/x-ms-dos-executable",
    u"application/x-msdownload", u"application/x-msi", u"application/x-java-archive",
    u"application/vnd.appimage", u"application/x-ms-shortcut", u"application/vnd.debian.binary-package",
    u"application/x-rpm"};

// Also by extension, for what the type database doesn't know or calls plain text.
constexpr std::array runnableSuffixes{u"exe", u"com", u"bat", u"cmd", u"scr", u"pif", u"msi", u"lnk", u"ps1",
    u"vbs", u"js", u"wsf", u"hta", u"jar", u"desktop", u"sh", u"bash", u"run", u"bin", u"py", u"pl", u"rb",
    u"appimage", u"flatpakref", u"deb", u"rpm"};

bool isRunnable(const QFileInfo& file)
{
    const QString suffix = file.suffix().toLower();
    if (file.isExecutable()
        || std::any_of(runnableSuffixes.begin(), runnableSuffixes.end(),
            [&suffix](const char16_t* runnable) { return suffix == QStringView(runnable); }))
        return true;
    const QMimeType type = QMimeDatabase().mimeTypeForFile(file);
    return std::any_of(runnableTypes.begin(), runnableTypes.end(),
        [&type](const char16_t* runnable) { return type.inherits(QString::fromUtf16(runnable)); });
}

} // namespace

std::optional<QUrl> openableAddress(QStringView text)
{
    const QString typed = text.trimmed().toString();
    if (typed.isEmpty() || typed.size() > maxAddressLength || typed.startsWith(u'-')
        || std::any_of(
            typed.begin(), typed.end(), [](QChar c) { return c.category() == QChar::Other_Control; }))
        return std::nullopt;

    QUrl url(typed, QUrl::TolerantMode);
    // "www.example.com:8080" reads as a scheme with dots in it.
    if (url.scheme().isEmpty() || url.scheme().contains(u'.'))
        url = QUrl(u"http://"_s + typed, QUrl::TolerantMode);
    const QString scheme = url.scheme();
    if (!url.isValid())
        return std::nullopt;
    if (scheme == "http"_L1 || scheme == "https"_L1)
        return url.host().isEmpty() ? std::nullopt : std::optional(url);
    if (scheme == "mailto"_L1) {
        // A mail client may take these as an order to attach a file of the user.
        const QUrlQuery query(url);
        for (const auto& [name, value] : query.queryItems()) {
            if (name.startsWith("attach"_L1, Qt::CaseInsensitive))
                return std::nullopt;
        }
        return url;
    }
    if (scheme == "tel"_L1 || scheme == "sip"_L1)
        return url;
    if (scheme == "file"_L1 && url.host().isEmpty())
        return url;
    return std::nullopt;
}

bool isOpenableFile(const QString& localPath, const QStringList& folders)
{
    const QString path = QFileInfo(localPath).canonicalFilePath();
    if (path.isEmpty() || !QFileInfo(path).isFile() || isRunnable(QFileInfo(path)))
        return false;
    return std::any_of(folders.begin(), folders.end(), [&path](const QString& folder) {
        const QString base = QFileInfo(folder).canonicalFilePath();
        return !base.isEmpty() && path.startsWith(base.endsWith(u'/') ? base : base + u'/');
    });
}

QString siblingProgram(const Drive& drive, QStringView name)
{
    QStringView file = name.trimmed();
    if (file.startsWith(u'\\'))
        file = file.mid(1);
    if (file.isEmpty() || file.contains(u'\\'))
        return {};
    const QStringView stem = file.endsWith(u".exe", Qt::CaseInsensitive) ? file.chopped(4) : file;
    for (const QStringView spelled : {file, stem}) {
        const QString program = drive.local(u'\\' + spelled.toString());
        if (!program.isEmpty() && QFileInfo(program).isFile() && QFileInfo(program).isExecutable())
            return program;
    }
    return {};
}

} // namespace platform
