#pragma once

#include "core/shared_state.h"
#include "jet/database.h"

#include <QStringView>

#include <span>

namespace platform {
class Drive;
}

namespace shell {

/// What the frame itself needs of the settings; all else goes into the shared state.
struct FrameSettings {
    bool business = false; ///< the business edition hides the personal tools
};

/// The business edition hides the personal tools.
bool isBusinessEdition(jet::Database& data);

/// Reads the switches, the contact selection in force, the font of the grids and the picture rule. A table or
/// row that is missing leaves the default. Adds the empty settings row when there is none.
FrameSettings readFrameSettings(jet::Database& data, core::SharedState& shared);

/// The folders of the user, in the order in which they are made.
std::span<const QStringView> userFolders();
/// Makes those folders that are missing.
void makeUserFolders(const platform::Drive& drive);

/// Reads the deferred key, lower-cased, and blanks it before anybody acts on it, so that a screen that fails
/// can not come again at each start.
QString takeDeferredKey(jet::Database& data);

/// Mails whose day has come and that are confirmed.
QString dueMailsSql(QDate today);

} // namespace shell
