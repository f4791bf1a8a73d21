#pragma once

#include "jet/recordset.h"

#include <QDate>
#include <QList>
#include <QStringList>

#include <optional>

namespace views {

/// The four ways to read a contact.
enum class NoteView { Brief, Personal, Business, Full };

QStringList noteViews(); ///< their words, in the order of the lists
std::optional<NoteView> noteViewOf(QStringView word);

/// What a line of a page leads to.
enum class NoteLink { None, Mail, Web, Phone, Contact };

struct NoteText {
    QString text;
    NoteLink link = NoteLink::None;
    QString target; ///< the address, number or name, where there is a link
};

struct NoteLine {
    QString label;
    QList<NoteText> texts; ///< one below the other
};

struct NoteSection {
    QString title;
    QList<NoteLine> lines;
};

/// How dates are written, from when ages are counted, and what the three own fields are called.
struct NoteWords {
    bool nationalMode;
    QDate today;
    QStringList userLabels;
};

/// The name of a contact, and what stands below it in a heading: job title, company, and the first ways to
/// reach it.
struct NoteHead {
    QString name;
    QString line;
    QString picture;
    NoteText mobile;
    NoteText mail;
};

/// What a view shows of the current row of "select * from cnt_main". There is no empty line and no empty
/// section.
QList<NoteSection> noteSections(const jet::Recordset& row, NoteView view, const NoteWords& words);
NoteHead noteHead(const jet::Recordset& row);

} // namespace views
