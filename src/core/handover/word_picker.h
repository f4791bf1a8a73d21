#pragma once

#include <QString>

#include <optional>

namespace core {

/// The screen that offers stored words or addresses for what is being typed, such as the colonies of a city.
class WordPicker {
public:
    virtual ~WordPicker() = default;
    /// Whether there is anything to pick from.
    virtual bool hasWords(const QString& city, const QString& word) = 0;
    /// Waits for the pick; nothing when the person chose none.
    virtual std::optional<QString> pickWord(const QString& city, const QString& word) = 0;
};

} // namespace core
