#pragma once

namespace core {

/// A form in which a new contact is entered.
class EntryForm {
public:
    virtual ~EntryForm() = default;
    /// Ready for a new contact, with the focus where one begins. False when the person would rather keep what
    /// stands in the form.
    virtual bool beginNew() = 0;
};

} // namespace core
