#pragma once

#include <QStringList>

namespace support {

/// What a Python script under tests/ prints, in lines: another program's opinion of a file of ours. Where the
/// script fails its last words are the one line.
QStringList linesOfScript(const QString& script, const QStringList& arguments);

} // namespace support
