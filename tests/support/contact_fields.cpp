#include "support/contact_fields.h"

#include "support/disk.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace support {

QList<ContactField> contactFields(const QString& form)
{
    const QByteArray table
        = bytesOf(QStringLiteral(ORVANE_SOURCE_DIR "/tests/support/data/contact_fields.csv"));
    const QStringList lines = QString::fromUtf8(table).split(u'\n', Qt::SkipEmptyParts);
    const qsizetype at = lines.value(0).split(u',').indexOf(form);
    QList<ContactField> fields;
    for (const QString& line : lines.mid(1)) {
        const QStringList cells = line.split(u',');
        if (at >= 0 && !cells[at].isEmpty())
            fields.append({cells[0], cells[at], cells[1] == u"date"_s});
    }
    if (fields.size() < 20)
        qFatal("no fields of %s", qUtf8Printable(form));
    return fields;
}

} // namespace support
