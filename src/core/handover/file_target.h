#pragma once

#include <QStringList>

namespace core {

/// A screen that can be handed files of this computer, as by a desktop that opens them with the program.
class FileTarget {
public:
    virtual ~FileTarget() = default;
    virtual void openFiles(const QStringList& files) = 0;
};

} // namespace core
