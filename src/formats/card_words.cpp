#include "formats/card_words.h"

#include "jet/date_text.h"

#include <algorithm>
#include <iterator>

#include <QStringList>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

/// Properties that mean one column, by the names that mail programs and telephones gave them.
struct TextRow {
    QLatin1StringView property;
    QStringView column;
};
constexpr TextRow kTexts[] = {
    {"FN"_L1, u"Name"},
    {"TITLE"_L1, u"Job_Title"},
    {"X-MAIDENNAME"_L1, u"Maiden"},
    {"SPOUSE"_L1, u"Spouse"},
    {"X-SPOUSE"_L1, u"Spouse"},
    {"X-EVOLUTION-SPOUSE"_L1, u"Spouse"},
    {"X-KADDRESSBOOK-X-SPOUSESNAME"_L1, u"Spouse"},
    {"HOBBY"_L1, u"Hobbies"},
    {"INTEREST"_L1, u"Hobbies"},
};
constexpr QLatin1StringView kAnniversaries[] = {"ANNIVERSARY"_L1, "X-ANNIVERSARY"_L1,
    "X-EVOLUTION-ANNIVERSARY"_L1, "X-KADDRESSBOOK-X-ANNIVERSARY"_L1, "X-WAB-WEDDING_ANNIVERSARY"_L1};

struct LabelRow {
    QLatin1StringView property;
    QLatin1StringView label;
};
constexpr LabelRow kLabels[] = {
    {"FN"_L1, "Name"_L1},
    {"N"_L1, "Name"_L1},
    {"NICKNAME"_L1, "Nick name"_L1},
    {"ORG"_L1, "Organisation"_L1},
    {"TITLE"_L1, "Job title"_L1},
    {"ROLE"_L1, "Role"_L1},
    {"TEL"_L1, "Telephone"_L1},
    {"EMAIL"_L1, "E-mail"_L1},
    {"ADR"_L1, "Address"_L1},
    {"LABEL"_L1, "Address label"_L1},
    {"URL"_L1, "Web"_L1},
    {"BDAY"_L1, "Birthday"_L1},
    {"ANNIVERSARY"_L1, "Anniversary"_L1},
    {"X-ANNIVERSARY"_L1, "Anniversary"_L1},
    {"GENDER"_L1, "Gender"_L1},
    {"IMPP"_L1, "Messenger"_L1},
    {"GEO"_L1, "Position"_L1},
    {"TZ"_L1, "Time zone"_L1},
    {"LANG"_L1, "Language"_L1},
    {"MAILER"_L1, "Mail program"_L1},
    {"CATEGORIES"_L1, "Categories"_L1},
    {"RELATED"_L1, "Related"_L1},
    {"X-ABRELATEDNAMES"_L1, "Related"_L1},
    {"X-ABDATE"_L1, "Date"_L1},
    {"PHOTO"_L1, "Photo"_L1},
    {"LOGO"_L1, "Logo"_L1},
    {"SOUND"_L1, "Sound"_L1},
    {"KEY"_L1, "Key"_L1},
    {"X-ABADR"_L1, "Address format"_L1},
};

/// Types that say nothing to a person.
constexpr QLatin1StringView kQuietTypes[]
    = {"PREF"_L1, "VOICE"_L1, "INTERNET"_L1, "POSTAL"_L1, "PARCEL"_L1, "DOM"_L1, "INTL"_L1, "OTHER"_L1};
} // namespace

QStringView columnOfProperty(const QString& property)
{
    for (const TextRow& row : kTexts) {
        if (property == row.property)
            return row.column;
    }
    return {};
}

bool isAnniversary(const QString& property)
{
    return std::find(std::begin(kAnniversaries), std::end(kAnniversaries), property)
        != std::end(kAnniversaries);
}

QString labelOfProperty(const QString& property)
{
    const auto* row = std::find_if(std::begin(kLabels), std::end(kLabels),
        [&](const LabelRow& one) { return property == one.property; });
    return row == std::end(kLabels) ? property : QString(row->label);
}

QString onOneLine(const QString& text)
{
    QStringList lines;
    for (const QString& line : text.split(u'\n')) {
        if (!line.trimmed().isEmpty())
            lines << line.trimmed();
    }
    return lines.join(u", "_s);
}

QStringList wordsOfTypes(const QStringList& types)
{
    QStringList words;
    for (const QString& type : types) {
        if (std::find(std::begin(kQuietTypes), std::end(kQuietTypes), type) == std::end(kQuietTypes))
            words << type.toLower();
    }
    return words;
}

QString plainLabel(const QString& label)
{
    if (label.startsWith("_$!<"_L1) && label.endsWith(">!$_"_L1))
        return label.mid(4, label.size() - 8);
    return label.trimmed();
}

CardDate cardDate(const QString& text)
{
    QString iso = text.trimmed();
    if (iso.size() >= 10 && (iso[4] == u'/' || iso[4] == u'.') && iso[7] == iso[4])
        iso[4] = iso[7] = u'-';
    const QDate day = jet::dayOfIso(iso);
    if (!day.isValid())
        return {};
    QString rest = iso.mid(iso.size() > 4 && iso[4] == u'-' ? 10 : 8);
    if (!rest.isEmpty() && rest[0] != u'T' && rest[0] != u' ')
        return {};
    return {jet::isoDate(day), rest.mid(1)};
}

bool isMidnight(const QString& time)
{
    return std::none_of(time.begin(), time.end(), [](QChar c) { return c >= u'1' && c <= u'9'; });
}

} // namespace formats
