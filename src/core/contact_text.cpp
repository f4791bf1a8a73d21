#include "core/contact_text.h"

#include "jet/date_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core {

namespace {

enum class Kind { Texts, Date, Kid };

constexpr int kMostParts = 6;

struct Line {
    QStringView labels[3]; ///< by layout; where there is none, so is no line
    QStringView columns[kMostParts];
    Kind kind = Kind::Texts;
};

// Kept: one blank less behind "Zip-" than behind its neighbours, and no blank behind the "Spouse Birthday-"
// of the whole book. Those who read the files by program cut the labels off by their length.
constexpr Line kLines[] = {
    {{u"Name-               ", u"Name- ", u"Name-           "}, {u"Name"}},
    {{u"Spouse-             ", u"Spouse- ", u"Spouse-         "}, {u"Spouse"}},
    {{u"Category-           ", u"Category- ", u"Category-       "}, {u"category1"}},
    {{u"Subcategory-        ", u"Subcategory- ", u"Subcategory-    "}, {u"category2"}},
    {{u"Priority-           ", u"Priority- ", u"Priority-       "}, {u"Priority"}},
    {{u"Product-            ", u"Product- ", u"Product-        "}, {u"Product"}},
    {{u"Company-            ", u"Company- ", u"Company-        "}, {u"Company"}},
    {{u"Home Address-       ", {}, {}}, {u"h_add1", u"h_add2"}},
    {{{}, u"Home Address- ", {}}, {u"h_add1", u"h_add2", u"h_city", u"h_state", u"h_pin", u"h_country"}},
    {{{}, {}, u"Home Address1-  "}, {u"h_add1"}},
    {{{}, {}, u"Home Address2-  "}, {u"h_add2"}},
    {{u"City-               ", {}, u"City-           "}, {u"h_city"}},
    {{u"State-              ", {}, {}}, {u"h_state"}},
    {{u"Zip-               ", {}, {}}, {u"h_pin"}},
    {{u"Country-            ", {}, {}}, {u"h_country"}},
    {{{}, {}, u"State-          "}, {u"h_state", u"h_pin", u"h_country"}},
    {{u"Home Phone-         ", u"Home Phone- ", u"Home Phone-     "}, {u"H_Ph1", u"h_ph2", u"h_ph3"}},
    {{u"Home Email-         ", u"Home Email- ", u"Home Email-     "}, {u"H_email1", u"h_email2"}},
    {{u"Work1 Address-      ", {}, {}}, {u"w_add1", u"w_add2"}},
    {{u"City-               ", {}, {}}, {u"w_city"}},
    {{u"State-              ", {}, {}}, {u"w_State"}},
    {{u"Zip-               ", {}, {}}, {u"w_pin"}},
    {{u"Country-            ", {}, {}}, {u"w_country"}},
    {{{}, u"Work1 Address- ", u"Work1 Address-  "},
        {u"w_add1", u"w_add2", u"w_city", u"w_State", u"w_pin", u"w_country"}},
    {{u"Work1 Phone-        ", u"Work1 Phone- ", u"Work1 Phone-    "}, {u"w_Ph1", u"w_Ph2", u"w_ph3"}},
    // Kept: the e-mail of the work is that of the other work address.
    {{u"Work Email-         ", u"Work Email- ", u"Work Email-     "}, {u"b_email1", u"b_email2"}},
    // Kept: the country stands before the pin, in this address only.
    {{u"Work2 Address-      ", u"Work2 Address- ", u"Work2 Address-  "},
        {u"b_add1", u"b_add2", u"b_city", u"b_state", u"b_country", u"b_pin"}},
    {{u"Work2 Phone-        ", u"Work2 Phone- ", u"Work2 Phone-    "}, {u"B_Ph1", u"B_Ph2", u"B_ph3"}},
    {{u"Mobile-             ", u"Mobile- ", u"Mobile-         "}, {u"Mobile"}},
    {{u"Spouse Mobile-      ", u"Spouse Mobile- ", u"Spouse Mobile-  "}, {u"SP_Mobile"}},
    {{u"Birthday-           ", u"Birthday- ", u"Birthday-       "}, {u"M_BD"}, Kind::Date},
    {{u"Spouse Birthday-    ", u"Spouse Birthday- ", u"Spouse Birthday-"}, {u"Sp_BD"}, Kind::Date},
    {{u"Anniversary-        ", u"Anniversary- ", u"Anniversary-    "}, {u"Anniv"}, Kind::Date},
    {{u"Kid1-               ", u"Kid1- ", u"Kid1-           "}, {u"kid1", u"Kid1_BD"}, Kind::Kid},
    {{u"Kid2-               ", u"Kid2- ", u"Kid2-           "}, {u"kid2", u"Kid2_BD"}, Kind::Kid},
    {{u"Kid3-               ", u"Kid3- ", u"Kid3-           "}, {u"kid3", u"Kid3_BD"}, Kind::Kid},
};

constexpr QStringView kLineEnd = u"\r\n";
constexpr QStringView kBetween = u"  ";
constexpr qsizetype kRuleLength = 83;

class Block {
public:
    Block(const ContactRecord& contact, TextLayout layout, const QString& datePattern)
        : m_contact(contact)
        , m_layout(layout)
        , m_datePattern(datePattern)
    {
    }

    QString text() const
    {
        const QString rule(kRuleLength, u'-');
        const QString name = u"Details of   "_s + valueOf(u"Name");
        QStringList lines{rule, name, rule, {}};
        const bool isLabelled = m_layout != TextLayout::Plain;
        for (const Line& line : kLines) {
            const QStringView label = line.labels[isLabelled ? size_t(m_layout) : size_t(TextLayout::All)];
            if (!label.isEmpty())
                lines << (isLabelled ? label.toString() : QString()) + valueOf(line);
        }
        return lines.join(kLineEnd);
    }

private:
    QString valueOf(QStringView column) const
    {
        QString text = m_contact.text(column);
        const auto isBreak = [](QChar letter) { return letter == u'\n' || letter == u'\r'; };
        if (std::any_of(text.cbegin(), text.cend(), isBreak))
            text.replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ').replace(u'\r', u' ');
        return text;
    }

    QString dateOf(QStringView column) const
    {
        return jet::formatDate(m_contact.date(column), m_datePattern);
    }

    QString valueOf(const Line& line) const
    {
        if (line.kind == Kind::Date)
            return dateOf(line.columns[0]);
        if (line.kind == Kind::Kid)
            return valueOfKid(valueOf(line.columns[0]), dateOf(line.columns[1]));
        QStringList parts;
        for (const QStringView column : line.columns) {
            if (!column.isEmpty())
                parts << valueOf(column);
        }
        return parts.join(kBetween);
    }

    QString valueOfKid(const QString& name, const QString& birthday) const
    {
        switch (m_layout) {
        case TextLayout::All: return name + u'(' + birthday + u')';
        case TextLayout::Plain: return name + u'-' + birthday;
        case TextLayout::Single:
        case TextLayout::Selected: break;
        }
        return name + kBetween.toString() + birthday;
    }

    const ContactRecord& m_contact;
    TextLayout m_layout;
    const QString& m_datePattern;
};

} // namespace

QString contactText(const ContactRecord& contact, TextLayout layout, const QString& datePattern)
{
    return Block(contact, layout, datePattern).text();
}

QStringList contactTextColumns()
{
    QStringList columns;
    for (const Line& line : kLines) {
        for (const QStringView column : line.columns) {
            if (!column.isEmpty())
                columns << column.toString();
        }
    }
    columns.removeDuplicates();
    return columns;
}

} // namespace core
