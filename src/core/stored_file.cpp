#include "core/stored_file.h"

#include "platform/drive.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace core {

namespace {

QString freeName(const QString& folder, const QFileInfo& file)
{
    const QString stem = platform::Drive::safeFileName(file.completeBaseName());
    const QString ending = file.suffix().isEmpty() ? QString() : u'.' + file.suffix().toLower();
    for (int number = 1; number < 10000; ++number) {
        const QString name = number == 1 ? stem + ending : u"%1 (%2)%3"_s.arg(stem).arg(number).arg(ending);
        if (!QFileInfo::exists(QDir(folder).filePath(name)))
            return name;
    }
    return {};
}

} // namespace

StoredFile::StoredFile(
    const platform::Drive& drive, QStringView folder, const QString& chosen, const QString& mode)
    : m_chosen(chosen)
    , m_isMoved(mode == u"Move")
{
    const QString own = drive.named(chosen);
    m_path = own.isEmpty() ? chosen : own;
    if ((!m_isMoved && mode != u"Copy") || !drive.ensureFolder(folder))
        return;
    const QString place = drive.local(folder);
    // A file that lies there already needs no second copy.
    if (QFileInfo(chosen).canonicalPath() == QFileInfo(place).canonicalFilePath())
        return;
    const QString name = freeName(place, QFileInfo(chosen));
    const QString target = QDir(place).filePath(name);
    if (name.isEmpty() || !(m_isMoved ? QFile::rename(chosen, target) : QFile::copy(chosen, target)))
        return;
    m_copy = target;
    m_path = folder.toString() + u'\\' + name;
}

namespace {

void putBack(const QString& copy, const QString& chosen, bool isMoved)
{
    if (isMoved)
        QFile::rename(copy, chosen);
    else
        QFile::remove(copy);
}

} // namespace

StoredFile::~StoredFile()
{
    if (!m_copy.isEmpty())
        putBack(m_copy, m_chosen, m_isMoved);
}

jet::StepFollower StoredFile::follower() const
{
    if (m_copy.isEmpty())
        return {};
    return [copy = m_copy, chosen = m_chosen, isMoved = m_isMoved](jet::StepDirection direction) {
        if (direction == jet::StepDirection::Back)
            putBack(copy, chosen, isMoved);
        else if (isMoved)
            QFile::rename(chosen, copy);
        else
            QFile::copy(chosen, copy);
    };
}

} // namespace core
