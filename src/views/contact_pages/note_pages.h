#pragma once

#include "jet/recordset.h"

#include <QDate>
#include <QList>

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

/// The name of a contact, and what stands below it in a heading: job title, company, category.
struct NoteHead {
    QString name;
    QString line;
    QString picture;
};

/// What a view shows of the current row of "select * from cnt_main". There is no empty line and no empty
/// section.
QList<NoteSection> noteSections(const jet::Recordset& row, NoteView view, bool nationalMode, QDate today);
NoteHead noteHead(const jet::Recordset& row);

} // namespace views
