#include "views/contact_pages/note_pages.h"

#include "core/date_patterns.h"
#include "jet/date_text.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace views {

namespace {

/// In which views a line stands.
enum In : unsigned { Brief = 1, Personal = 2, Business = 4, Full = 8, Everywhere = 15 };

enum class How {
    Words, ///< with a blank between
    Dashed, ///< with a dash between
    Lines, ///< one below the other
    Place, ///< street lines, then city and pin, then state and country
    Number, ///< the area code, then numbers
    Date,
    Birthday, ///< with the age
    Relative, ///< a name, and a date of birth
    Contact, ///< the name of another contact
};

struct NoteRow {
    unsigned views;
    const char* section;
    const char* label; ///< null for the three fields that the person has named
    How how;
    std::array<QStringView, 6> columns;
    NoteLink link = NoteLink::None;
};

constexpr const char* kPerson = QT_TRANSLATE_NOOP("views", "Person");
constexpr const char* kReach = QT_TRANSLATE_NOOP("views", "Phone and e-mail");
constexpr const char* kHome = QT_TRANSLATE_NOOP("views", "Home");
constexpr const char* kWork1 = QT_TRANSLATE_NOOP("views", "Work 1");
constexpr const char* kWork2 = QT_TRANSLATE_NOOP("views", "Work 2");
constexpr const char* kFamily = QT_TRANSLATE_NOOP("views", "Family and dates");
constexpr const char* kClasses = QT_TRANSLATE_NOOP("views", "Classes");
constexpr const char* kNotes = QT_TRANSLATE_NOOP("views", "Notes");

// What one looks a contact up for stands first. The rows of a section stand together.
constexpr NoteRow kRows[] = {
    {Everywhere, kReach, QT_TRANSLATE_NOOP("views", "Mobile"), How::Lines, {u"Mobile"}, NoteLink::Phone},
    {Brief | Personal | Full, kReach, QT_TRANSLATE_NOOP("views", "Home"), How::Number,
        {u"h_std", u"H_Ph1", u"h_ph2", u"h_ph3"}, NoteLink::Phone},
    {Brief | Business | Full, kReach, QT_TRANSLATE_NOOP("views", "Work 1"), How::Number,
        {u"B_std", u"B_Ph1", u"B_Ph2", u"B_ph3"}, NoteLink::Phone},
    {Business | Full, kReach, QT_TRANSLATE_NOOP("views", "Extension"), How::Lines, {u"b_tel_xtn"}},
    {Business | Full, kReach, QT_TRANSLATE_NOOP("views", "Work 2"), How::Number,
        {u"W_std", u"w_Ph1", u"w_Ph2", u"w_ph3"}, NoteLink::Phone},
    {Business | Full, kReach, QT_TRANSLATE_NOOP("views", "Extension 2"), How::Lines, {u"W_Tel_XTN"}},
    {Business | Full, kReach, QT_TRANSLATE_NOOP("views", "Fax"), How::Lines, {u"fax"}},
    {Personal | Full, kReach, QT_TRANSLATE_NOOP("views", "Spouse"), How::Lines, {u"SP_Mobile"},
        NoteLink::Phone},
    {Personal | Full, kReach, QT_TRANSLATE_NOOP("views", "SMS"), How::Lines, {u"Sms"}},
    {Brief | Personal | Full, kReach, QT_TRANSLATE_NOOP("views", "E-mail"), How::Lines,
        {u"H_email1", u"h_email2"}, NoteLink::Mail},
    {Brief | Business | Full, kReach, QT_TRANSLATE_NOOP("views", "Work e-mail"), How::Lines,
        {u"b_email1", u"b_email2", u"w_email1", u"W_Email2"}, NoteLink::Mail},
    {Personal | Full, kReach, QT_TRANSLATE_NOOP("views", "Web"), How::Lines, {u"h_web"}, NoteLink::Web},
    {Business | Full, kReach, QT_TRANSLATE_NOOP("views", "Work web"), How::Lines, {u"B_Web", u"W_web"},
        NoteLink::Web},

    {Brief | Personal | Full, kHome, QT_TRANSLATE_NOOP("views", "Address"), How::Place,
        {u"h_add1", u"h_add2", u"h_city", u"h_pin", u"h_state", u"h_country"}},

    {Business | Full, kWork1, QT_TRANSLATE_NOOP("views", "Company"), How::Lines, {u"Company"}},
    {Business | Full, kWork1, QT_TRANSLATE_NOOP("views", "Job title"), How::Lines, {u"Job_Title"}},
    {Business | Full, kWork1, QT_TRANSLATE_NOOP("views", "Alternate"), How::Words,
        {u"AltTitle", u"altcontact"}},
    {Business | Full, kWork1, QT_TRANSLATE_NOOP("views", "Type"), How::Lines, {u"B_Add_Type"}},
    {Brief | Business | Full, kWork1, QT_TRANSLATE_NOOP("views", "Address"), How::Place,
        {u"b_add1", u"b_add2", u"b_city", u"b_pin", u"b_state", u"b_country"}},

    {Business | Full, kWork2, QT_TRANSLATE_NOOP("views", "Type"), How::Lines, {u"W_AddType"}},
    {Business | Full, kWork2, QT_TRANSLATE_NOOP("views", "Address"), How::Place,
        {u"w_add1", u"w_add2", u"w_city", u"w_pin", u"w_State", u"w_country"}},

    {Brief | Personal | Full, kFamily, QT_TRANSLATE_NOOP("views", "Birthday"), How::Birthday, {u"M_BD"}},
    {Personal | Full, kFamily, QT_TRANSLATE_NOOP("views", "Anniversary"), How::Date, {u"Anniv"}},
    {Personal | Full, kFamily, QT_TRANSLATE_NOOP("views", "Spouse"), How::Relative, {u"Spouse", u"Sp_BD"}},
    {Personal | Full, kFamily, QT_TRANSLATE_NOOP("views", "Child 1"), How::Relative, {u"kid1", u"Kid1_BD"}},
    {Personal | Full, kFamily, QT_TRANSLATE_NOOP("views", "Child 2"), How::Relative, {u"kid2", u"Kid2_BD"}},
    {Personal | Full, kFamily, QT_TRANSLATE_NOOP("views", "Child 3"), How::Relative, {u"kid3", u"Kid3_BD"}},
    {Personal | Full, kFamily, QT_TRANSLATE_NOOP("views", "Associates"), How::Contact, {u"Asso1", u"asso2"},
        NoteLink::Contact},

    {Personal | Full, kPerson, QT_TRANSLATE_NOOP("views", "Name"), How::Words,
        {u"Title", u"First", u"Mid", u"Last"}},
    {Personal | Full, kPerson, QT_TRANSLATE_NOOP("views", "Nick name"), How::Lines, {u"nick"}},
    {Personal | Full, kPerson, QT_TRANSLATE_NOOP("views", "Maiden name"), How::Lines, {u"Maiden"}},
    {Personal | Full, kPerson, QT_TRANSLATE_NOOP("views", "Gender"), How::Lines, {u"sex"}},
    {Personal | Full, kPerson, QT_TRANSLATE_NOOP("views", "Education"), How::Lines, {u"education"}},
    {Personal | Full, kPerson, QT_TRANSLATE_NOOP("views", "Hobbies"), How::Lines, {u"Hobbies"}},
    {Personal | Full, kPerson, QT_TRANSLATE_NOOP("views", "Religion"), How::Lines, {u"Religion"}},
    {Personal | Full, kPerson, QT_TRANSLATE_NOOP("views", "Relation"), How::Lines, {u"Relation"}},

    {Brief | Full, kClasses, QT_TRANSLATE_NOOP("views", "Category"), How::Dashed,
        {u"category1", u"category2"}},
    {Full, kClasses, QT_TRANSLATE_NOOP("views", "Priority"), How::Lines, {u"Priority"}},
    {Business | Full, kClasses, QT_TRANSLATE_NOOP("views", "Product"), How::Lines, {u"Product"}},
    {Business | Full, kClasses, QT_TRANSLATE_NOOP("views", "Status"), How::Lines, {u"Status"}},
    {Full, kClasses, QT_TRANSLATE_NOOP("views", "Region"), How::Lines, {u"region"}},
    {Full, kClasses, nullptr, How::Lines, {u"User1"}},
    {Full, kClasses, nullptr, How::Lines, {u"User2"}},
    {Full, kClasses, nullptr, How::Lines, {u"User3"}},

    // A note is written to one column when a contact is new, and to the other when it is changed.
    {Personal | Full, kNotes, QT_TRANSLATE_NOOP("views", "Note"), How::Lines, {u"memo1", u"Memo"}},
    {Personal | Full, kNotes, QT_TRANSLATE_NOOP("views", "Family"), How::Lines, {u"fam_note"}},
    {Business | Full, kNotes, QT_TRANSLATE_NOOP("views", "Work"), How::Lines, {u"b_note"}},
};

struct ViewRow {
    NoteView view;
    unsigned bit;
    QStringView word;
};

constexpr ViewRow kViews[] = {
    {NoteView::Brief, Brief, u"Brief"},
    {NoteView::Personal, Personal, u"Personal"},
    {NoteView::Business, Business, u"Business"},
    {NoteView::Full, Full, u"Full"},
};

/// What a class holds instead of nothing tells a reader nothing. An entry form that was given no address
/// stores the sign alone.
bool saysNothing(const QString& text)
{
    return text.isEmpty() || text.compare(u"Undefined"_s, Qt::CaseInsensitive) == 0 || text == u"@";
}

QString said(const jet::Recordset& row, QStringView column)
{
    const QString text = column.isEmpty() ? QString() : row.textOrEmpty(column).trimmed();
    return saysNothing(text) ? QString() : text;
}

QString joined(const QStringList& parts, const QString& between)
{
    QStringList present = parts;
    present.removeAll(QString());
    return present.join(between);
}

QString dated(const jet::Recordset& row, QStringView column, bool nationalMode)
{
    return jet::formatDate(row.date(column), core::datePattern(nationalMode));
}

QString aged(const jet::Recordset& row, QStringView column, bool nationalMode, QDate today)
{
    const QString text = dated(row, column, nationalMode);
    return text.isEmpty()
        ? text
        : text + u" ( "_s + QString::number(today.year() - row.date(column).year()) + u" )"_s;
}

QList<NoteText> plain(const QStringList& texts)
{
    QList<NoteText> result;
    for (const QString& text : texts) {
        if (!text.isEmpty())
            result << NoteText{text, NoteLink::None, {}};
    }
    return result;
}

QList<NoteText> linked(const jet::Recordset& row, const NoteRow& shown)
{
    QList<NoteText> result;
    for (const QStringView column : shown.columns) {
        const QString text = said(row, column);
        const bool twice = std::any_of(
            result.cbegin(), result.cend(), [&text](const NoteText& before) { return before.text == text; });
        if (!text.isEmpty() && !twice)
            result << NoteText{text, shown.link, text};
    }
    return result;
}

QList<NoteText> numbers(const jet::Recordset& row, const NoteRow& shown)
{
    const QString code = said(row, shown.columns[0]);
    QList<NoteText> result;
    for (std::size_t i = 1; i < shown.columns.size(); ++i) {
        if (const QString number = said(row, shown.columns[i]); !number.isEmpty())
            result << NoteText{joined({code, number}, u" "_s), shown.link, code + number};
    }
    return result;
}

QList<NoteText> textsOf(const jet::Recordset& row, const NoteRow& shown, bool nationalMode, QDate today)
{
    std::array<QString, 6> parts;
    for (std::size_t i = 0; i < parts.size(); ++i)
        parts[i] = said(row, shown.columns[i]);
    switch (shown.how) {
    case How::Words: return plain({joined({parts[0], parts[1], parts[2], parts[3]}, u" "_s)});
    case How::Dashed: return plain({joined({parts[0], parts[1]}, u" - "_s)});
    case How::Lines:
    case How::Contact: return linked(row, shown);
    case How::Place:
        return plain({parts[0], parts[1], joined({parts[2], parts[3]}, u" "_s),
            joined({parts[4], parts[5]}, u", "_s)});
    case How::Number: return numbers(row, shown);
    case How::Date: return plain({dated(row, shown.columns[0], nationalMode)});
    case How::Birthday: return plain({aged(row, shown.columns[0], nationalMode, today)});
    case How::Relative:
        return plain({joined({parts[0], aged(row, shown.columns[1], nationalMode, today)}, u", "_s)});
    }
    return {};
}

QString translated(const char* text)
{
    return QCoreApplication::translate("views", text);
}

} // namespace

QStringList noteViews()
{
    QStringList words;
    for (const ViewRow& row : kViews)
        words << row.word.toString();
    return words;
}

std::optional<NoteView> noteViewOf(QStringView word)
{
    for (const ViewRow& row : kViews) {
        if (row.word == word)
            return row.view;
    }
    return {};
}

QList<NoteSection> noteSections(const jet::Recordset& row, NoteView view, const NoteWords& words)
{
    const unsigned bit = kViews[static_cast<std::size_t>(view)].bit;
    QList<NoteSection> sections;
    const char* open = nullptr;
    for (const NoteRow& shown : kRows) {
        if (!(shown.views & bit))
            continue;
        const QList<NoteText> texts = textsOf(row, shown, words.nationalMode, words.today);
        const QString label = shown.label ? translated(shown.label)
                                          : words.userLabels.value(shown.columns[0].back().digitValue() - 1);
        if (texts.isEmpty())
            continue;
        if (open != shown.section)
            sections << NoteSection{translated(shown.section), {}};
        open = shown.section;
        sections.last().lines << NoteLine{label, texts};
    }
    return sections;
}

NoteHead noteHead(const jet::Recordset& row)
{
    constexpr NoteRow mobile{0, nullptr, nullptr, How::Lines, {u"Mobile"}, NoteLink::Phone};
    constexpr NoteRow mail{0, nullptr, nullptr, How::Lines,
        {u"H_email1", u"h_email2", u"b_email1", u"b_email2", u"w_email1", u"W_Email2"}, NoteLink::Mail};
    return {row.textOrEmpty(u"Name").trimmed(),
        joined({said(row, u"Job_Title"), said(row, u"Company")}, u", "_s), row.textOrEmpty(u"PhotLoc"),
        linked(row, mobile).value(0), linked(row, mail).value(0)};
}

} // namespace views
