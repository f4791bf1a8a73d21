#pragma once

#include <QString>

#include <array>
#include <span>

namespace telephone {

inline constexpr int kPendingLines = 5;

/// What is done to a person of the pending list.
struct PendingKind {
    const char* title; ///< for translation in the context "telephone"
    QStringView name; ///< its columns are this and the number of the line, "Callper1"
    QStringView tick; ///< as "SelectcallPer1"
    QStringView word; ///< in the text file
};
/// Calls, e-mails and letters.
std::span<const PendingKind> pendingKinds();

struct PendingItem {
    QString name;
    bool isDone = false;
};
using PendingList = std::array<std::array<PendingItem, kPendingLines>, 3>; ///< by kind and line

/// The list as a text: under the heading of each kind and a dashed rule its people, each with what became of
/// it. Lines without a name are left out.
QString pendingText(const PendingList& list);

} // namespace telephone
