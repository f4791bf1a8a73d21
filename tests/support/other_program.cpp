#include "support/other_program.h"

#include <QProcess>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

namespace support {

QStringList linesOfScript(const QString& script, const QStringList& arguments)
{
    QProcess python;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PYTHONIOENCODING"_s, u"utf-8"_s);
    environment.insert(u"PYTHONDONTWRITEBYTECODE"_s, u"1"_s);
    python.setProcessEnvironment(environment);
    // The one of the system, which has the packages that are installed for the tests.
    python.start(
        u"/usr/bin/python3"_s, QStringList{QStringLiteral(ORVANE_SOURCE_DIR "/tests/") + script} + arguments);
    constexpr int kMostSeconds = 100;
    if (!python.waitForFinished(kMostSeconds * 1000) || python.exitCode() != 0)
        return {QString::fromUtf8(python.readAllStandardError()).trimmed().section(u'\n', -1)};
    return QString::fromUtf8(python.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace support
