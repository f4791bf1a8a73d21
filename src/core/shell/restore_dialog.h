#pragma once

#include "core/store/backups.h"

#include <optional>

class QWidget;

namespace shell {

/// Lets the person choose one of the backups; nothing when cancelled.
std::optional<core::Backup> chooseBackup(QWidget* parent, const QList<core::Backup>& backups);

} // namespace shell
