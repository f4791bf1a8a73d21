#pragma once

namespace core {

/// A screen with more than lists to bring up to date when the set-up has changed what lists and forms offer.
/// The lists of all open screens are read again without it.
class VocabularyListener {
public:
    virtual ~VocabularyListener() = default;
    /// Keeps what is being entered.
    virtual void vocabulariesChanged() = 0;
};

} // namespace core
