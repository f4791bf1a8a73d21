#pragma once

#include <QString>

namespace platform {
class Drive;
}

namespace core {

/// The file of a stored picture path on this computer. The path is as the program writes paths, or one of
/// this computer when the picture was linked from outside the drives; empty when there is no such path.
QString photoFile(const platform::Drive& drive, const QString& stored);

} // namespace core
