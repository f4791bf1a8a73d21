#pragma once

#include "entry/contact_columns.h"

#include <QStringView>

#include <span>

namespace entry {

/// What one of the entry forms has different from the others; all else they share.
struct FormVariant {
    QStringView form; ///< its name, as callers and registry know it
    const char* caption;
    const char* title; ///< of the frame
    QStringView helpCode;
    std::span<const QStringView> sexes;
    std::span<const ColumnRow> addColumns;
    std::span<const ColumnRow> editColumns;
    bool updatesMailOnEdit; ///< whether a change reaches the mail client's contacts
    // The ends of a favourite's name for the two web addresses.
    QStringView homeSuffixOnAdd;
    QStringView workSuffixOnAdd;
    QStringView homeSuffixOnEdit;
    QStringView workSuffixOnEdit;
};

const FormVariant& detailedForm();

} // namespace entry
