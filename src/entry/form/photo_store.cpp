#include "entry/form/photo_store.h"

#include "platform/drive.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

constexpr QStringView kFolder = u"C:\\OVUserFiles\\Photos";

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

StoredPhoto::StoredPhoto(const platform::Drive& drive, const QString& chosen, const QString& mode)
    : m_chosen(chosen)
    , m_isMoved(mode == u"Move")
{
    const QString own = drive.named(chosen);
    m_path = own.isEmpty() ? chosen : own;
    if ((!m_isMoved && mode != u"Copy") || !drive.ensureFolder(kFolder))
        return;
    const QString folder = drive.local(kFolder);
    // A picture that lies there already needs no second copy.
    if (QFileInfo(chosen).canonicalPath() == QFileInfo(folder).canonicalFilePath())
        return;
    const QString name = freeName(folder, QFileInfo(chosen));
    const QString target = QDir(folder).filePath(name);
    if (name.isEmpty() || !(m_isMoved ? QFile::rename(chosen, target) : QFile::copy(chosen, target)))
        return;
    m_copy = target;
    m_path = kFolder.toString() + u'\\' + name;
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

StoredPhoto::~StoredPhoto()
{
    if (!m_copy.isEmpty())
        putBack(m_copy, m_chosen, m_isMoved);
}

jet::StepFollower StoredPhoto::follower() const
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

} // namespace entry
