#pragma once

#include <QString>

namespace core {

/// A screen with a text into which stored phrases are inserted.
class PhraseTarget {
public:
    virtual ~PhraseTarget() = default;
    /// Puts a phrase in at the caret, replacing nothing.
    virtual void insertPhrase(const QString& text) = 0;
};

} // namespace core
