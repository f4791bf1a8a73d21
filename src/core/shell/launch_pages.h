#pragma once

#include <QString>
#include <QStringView>

#include <span>

namespace shell {

/// One page of the launch pad: the launch mode that asks for it, its title, and the key of its description.
struct LaunchPage {
    QStringView mode;
    const char* title;
    QStringView description;
};

std::span<const LaunchPage> launchPages();
/// nullptr for a mode that is no page.
const LaunchPage* launchPageOf(QStringView mode);

QString launchDescriptionSql(const LaunchPage& page);
QString launchRowsSql(const LaunchPage& page);

} // namespace shell
