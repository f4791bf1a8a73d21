#pragma once

#include "entry/form/contact_columns.h"

#include <QStringView>

#include <functional>
#include <span>

class QWidget;

namespace entry {

/// How many characters a column takes.
using SizeOf = std::function<int(QStringView column)>;

/// A page of an entry form. The name tells the assists which address stands on it.
struct EntryPage {
    QStringView name;
    const char* title;
    QStringView icon;
    QWidget* (*layOut)(const SizeOf& sizeOf);
};

/// A field that shows another column when that one is not empty.
struct ChangedColumn {
    QStringView control;
    QStringView column;
};

/// What one of the entry forms has different from the others; all else they share.
struct FormVariant {
    QStringView form; ///< its name, as callers and registry know it
    const char* caption;
    const char* title; ///< of the frame
    QStringView helpCode;
    std::span<const EntryPage> pages;
    std::span<const QStringView> sexes;
    std::span<const ColumnRow> addColumns;
    std::span<const ColumnRow> editColumns;
    /// What a change writes elsewhere than the columns of a new contact, and a person then expects to see.
    std::span<const ChangedColumn> changedColumns;
    bool hasUserFields; ///< the three fields with labels of the user's own
    bool updatesMailOnEdit; ///< whether a change reaches the mail client's contacts
    // The ends of a favourite's name for the two web addresses.
    QStringView homeSuffixOnAdd;
    QStringView workSuffixOnAdd;
    QStringView homeSuffixOnEdit;
    QStringView workSuffixOnEdit;
};

const FormVariant& detailedForm();
const FormVariant& briefForm();
const FormVariant& businessForm();

} // namespace entry
