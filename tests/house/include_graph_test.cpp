#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

struct File {
    QString path; ///< from the top of the repository
    QString text;
};

/// The rooms that another one may include from, besides itself. Screens meet through core, never directly.
const QHash<QString, QStringList> kArrows{
    {u"jet"_s, {}},
    {u"formats"_s, {u"jet"_s}},
    {u"platform"_s, {u"formats"_s, u"jet"_s}},
    {u"widgets"_s, {u"platform"_s, u"formats"_s, u"jet"_s}},
    {u"editor"_s, {u"widgets"_s, u"platform"_s, u"formats"_s, u"jet"_s}},
    {u"core"_s, {u"widgets"_s, u"platform"_s, u"formats"_s, u"jet"_s}},
    {u"output"_s, {u"core"_s, u"widgets"_s, u"platform"_s, u"formats"_s, u"jet"_s}},
    {u"core/shell"_s, {u"output"_s, u"core"_s, u"widgets"_s, u"platform"_s, u"formats"_s, u"jet"_s}},
    {u"core/setup"_s, {u"output"_s, u"core"_s, u"widgets"_s, u"platform"_s, u"formats"_s, u"jet"_s}},
    {u"tools"_s, {u"core"_s, u"platform"_s, u"formats"_s, u"jet"_s}},
};
/// Every other room under src is a subsystem.
const QStringList kOfASubsystem{
    u"output"_s, u"editor"_s, u"core"_s, u"widgets"_s, u"platform"_s, u"formats"_s, u"jet"_s};

QList<File> filesUnder(const QStringList& folders, const QStringList& names)
{
    QList<File> files;
    const QDir top(QStringLiteral(ORVANE_SOURCE_DIR));
    for (const QString& folder : folders) {
        QDirIterator each(top.filePath(folder), names, QDir::Files | QDir::Hidden,
            folder == u"." ? QDirIterator::NoIteratorFlags
                           : QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
        while (each.hasNext()) {
            QFile file(each.next());
            if (file.open(QIODevice::ReadOnly))
                files.append({top.relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll())});
        }
    }
    return files;
}

QString roomOf(const QString& path)
{
    for (const QString& room : {u"core/shell"_s, u"core/setup"_s}) {
        if (path.startsWith(room + u'/'))
            return room;
    }
    return path.section(u'/', 0, -2).section(u'/', 0, 0);
}

QStringList includesOf(const QString& text)
{
    static const QRegularExpression line(
        uR"(^\s*#\s*include\s*[<"]([^>"]+)[>"])"_s, QRegularExpression::MultilineOption);
    QStringList found;
    for (const auto& match : line.globalMatch(text))
        found << match.captured(1);
    return found;
}

/// What stands between quotes in the code itself, not in its comments.
QStringList literalsOf(const QString& text)
{
    static const QRegularExpression token(
        uR"re(//[^\n]*|/\*.*?\*/|#include[^\n]*|'(?:\\.|[^'\\])'|"((?:\\.|[^"\\\n])*)")re"_s,
        QRegularExpression::DotMatchesEverythingOption);
    QStringList found;
    for (const auto& match : token.globalMatch(text)) {
        if (match.hasCaptured(1))
            found << match.captured(1);
    }
    return found;
}

} // namespace

/// The rules of the house that a reader of one file alone can not see.
class IncludeGraphTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void arrowsRunDownwards();
    void logicKnowsNoWidget();
    void onlyTheEngineKnowsItsDatabase();
    void oneClockAndOneCalendar();
    void filesAreShort();

private:
    QList<File> m_sources; ///< under src, by the path as it is included
};

void IncludeGraphTest::initTestCase()
{
    for (File file : filesUnder({u"src"_s}, {u"*.h"_s, u"*.cpp"_s})) {
        file.path = file.path.mid(4);
        m_sources << file;
    }
    QVERIFY(m_sources.size() > 100);
}

void IncludeGraphTest::arrowsRunDownwards()
{
    QStringList wrong;
    int arrows = 0;
    QSet<QString> known;
    for (const File& file : m_sources)
        known.insert(file.path);
    for (const File& file : m_sources) {
        const QString room = roomOf(file.path);
        for (const QString& include : includesOf(file.text)) {
            if (!known.contains(include))
                continue;
            ++arrows;
            const QString target = roomOf(include);
            const QStringList allowed = kArrows.value(room, kOfASubsystem);
            const bool composes = file.path == u"main.cpp";
            if (!composes && target != room && !allowed.contains(target))
                wrong << file.path + u" -> "_s + include;
        }
    }
    QCOMPARE(wrong.join(u'\n'), QString());
    QVERIFY(arrows > 200);
}

// A _logic target is built without the widgets; what it could still include by mistake is named here.
void IncludeGraphTest::logicKnowsNoWidget()
{
    static const QRegularExpression list(
        uR"(orvane_library\((\w+)_logic\s+SOURCES(.*?)\sLINK|orvane_subsystem\((\w+)\s+LOGIC(.*?)\sFORMS)"_s,
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression widget(
        uR"(^(widgets/(?!field_values\.h)|QtWidgets|QWidget|QDialog|QMessageBox|QApplication|QMainWindow|core/screen))"_s);
    QHash<QString, const File*> byPath;
    for (const File& file : m_sources)
        byPath.insert(file.path, &file);
    QStringList wrong;
    int logicFiles = 0;
    for (const File& cmake : filesUnder({u"src"_s}, {u"CMakeLists.txt"_s})) {
        const QString folder = cmake.path.section(u'/', 1, -2);
        for (const auto& match : list.globalMatch(cmake.text)) {
            const QString names = match.captured(2) + match.captured(4);
            for (const QString& name : names.split(QRegularExpression(u"\\s+"_s), Qt::SkipEmptyParts)) {
                if (!name.endsWith(u".cpp"))
                    continue;
                ++logicFiles;
                for (const QString& path :
                    {QString(folder + u'/' + name), QString(folder + u'/' + name.chopped(3) + u'h')}) {
                    const File* file = byPath.value(path);
                    for (const QString& include : file ? includesOf(file->text) : QStringList()) {
                        if (widget.match(include).hasMatch())
                            wrong << path + u" -> "_s + include;
                    }
                }
            }
        }
    }
    QCOMPARE(wrong.join(u'\n'), QString());
    QVERIFY(logicFiles > 15);
}

void IncludeGraphTest::onlyTheEngineKnowsItsDatabase()
{
    static const QRegularExpression words(
        uR"(\b(PRAGMA|sqlite_\w+|VACUUM|ATTACH DATABASE)\b)"_s, QRegularExpression::CaseInsensitiveOption);
    QStringList wrong;
    for (const File& file : m_sources) {
        if (file.path.startsWith(u"jet/"))
            continue;
        for (const QString& include : includesOf(file.text)) {
            if (include.contains(u"sqlite"))
                wrong << file.path + u" -> "_s + include;
        }
        for (const QString& literal : literalsOf(file.text)) {
            if (words.match(literal).hasMatch())
                wrong << file.path + u": "_s + literal;
        }
    }
    QCOMPARE(wrong.join(u'\n'), QString());
}

// A test sets the clock, and a date that is read or written in one place is the same in all.
void IncludeGraphTest::oneClockAndOneCalendar()
{
    const struct {
        QRegularExpression words;
        QString place;
    } rules[] = {
        {QRegularExpression(uR"(\bcurrent(Date|Time|DateTime|M?SecsSinceEpoch)\b|\bsystem_clock\b)"_s),
            u"platform/clock.h"_s},
        {QRegularExpression(
             uR"(\bQDate(Time)?::fromString\b|\bISODate\b|\bc\(\)\.to(Date|String)\b|toString\(u".*(yy|MM))"_s),
            u"jet/date_text.cpp"_s},
    };
    QStringList wrong;
    for (const auto& rule : rules) {
        for (const File& file : m_sources) {
            const auto match = rule.words.match(file.text);
            if (match.hasMatch() && file.path != rule.place)
                wrong << file.path + u": "_s + match.captured();
        }
    }
    QCOMPARE(wrong.join(u'\n'), QString());
}

void IncludeGraphTest::filesAreShort()
{
    // Tables have no place where one would stop reading.
    const QStringList tables{u"core/shell/tool_bar_table.cpp"_s, u"core/command_table.cpp"_s};
    QStringList wrong;
    for (const File& file : m_sources) {
        const auto lines = file.text.count(u'\n');
        if (lines > 600 && !tables.contains(file.path))
            wrong << u"%1: %2 lines"_s.arg(file.path).arg(lines);
    }
    QCOMPARE(wrong.join(u'\n'), QString());
}

QTEST_GUILESS_MAIN(IncludeGraphTest)
#include "include_graph_test.moc"
