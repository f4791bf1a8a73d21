#pragma once

#include "core/vocabularies.h"

#include <QStringView>

#include <optional>
#include <span>

namespace entry {

/// How a value is chosen.
enum class TurboKind {
    List,
    Fixed, ///< a list that no table holds
    City,
    DigitPad,
    Typed,
    Calendar,
};

/// The two addresses of a contact.
enum class Block { Home, Work };

/// One row of the field list: its name, where its values come from, and the box that takes one.
struct TurboField {
    const char* name; ///< as it is shown, to be translated
    TurboKind kind = TurboKind::List;
    QStringView box;
    QStringView workBox = {}; ///< where each of the two addresses has one
    bool appends = false; ///< a value is added behind what stands in the box
    std::optional<core::Vocabulary> vocabulary = {}; ///< a list shared with the other entry forms
    // A list of its own; %1 stands for the home city.
    QStringView home = {};
    QStringView abroad = {}; ///< empty when it is the same
    bool inInformation = false;
    std::span<const QStringView> fixed = {}; ///< the rows of a list that no table holds
    QStringView tag = {}; ///< of the calendar
};

std::span<const TurboField> turboFields();

struct TurboSource {
    QString sql;
    bool inInformation = false;
};
/// The statement behind a list.
TurboSource turboSource(const TurboField& field, bool nationalMode, const QString& homeCity);
QStringList fixedValues(const TurboField& field);

QStringView boxOf(const TurboField& field, Block block);
/// What stands in a box after a value has been taken.
QString takenText(const TurboField& field, const QString& standing, const QString& value);

/// The boxes that the digit pad fills.
std::span<const QStringView> padBoxes();
/// The one that a digit goes to, by the phone box that was entered last.
QStringView padBox(QStringView lastEntered);

} // namespace entry
