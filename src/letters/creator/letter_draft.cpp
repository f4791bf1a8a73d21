#include "letters/creator/letter_draft.h"

#include "formats/rtf_reader.h"
#include "formats/rtf_writer.h"

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr QChar kBetween(0x1f); ///< the parts of an address
constexpr QChar kBetweenPeople(0x1e);
constexpr qsizetype kPartsOfARecipient = 10;
constexpr QStringView kTyped = u"typed";

struct TextOfDraft {
    QStringView name;
    QString LetterToKeep::*text;
};
constexpr TextOfDraft kTexts[] = {
    {u"caption", &LetterToKeep::caption},
    {u"category", &LetterToKeep::category},
    {u"type", &LetterToKeep::type},
    {u"serial number", &LetterToKeep::serialNumber},
    {u"kind", &LetterToKeep::kind},
    {u"note", &LetterToKeep::note},
};

QString rtfOf(const formats::RichText& text)
{
    return QString::fromLatin1(formats::writeRtf(text));
}

formats::RichText textOf(const QString& rtf)
{
    return formats::readRtf(rtf.toLatin1()).value_or(formats::RichText());
}

QString recipientText(const Recipient& to)
{
    const LetterAddress& at = to.address;
    return QStringList{QString::number(to.id), to.name, to.salutation, to.category, at.line1, at.line2,
        at.city, at.state, at.country, at.pin}
        .join(kBetween);
}

} // namespace

widgets::FieldValues draftValues(const LetterDraft& draft)
{
    widgets::FieldValues values;
    const LetterParts& parts = draft.letter.parts;
    const auto& openings = parts.openings;
    const auto& closings = parts.closings;
    values.texts.insert(u"openings"_s, QStringList(openings.begin(), openings.end()).join(kBetween));
    values.texts.insert(u"closings"_s, QStringList(closings.begin(), closings.end()).join(kBetween));
    values.texts.insert(u"ending"_s, parts.ending);
    values.texts.insert(u"signature"_s, parts.signature);
    values.texts.insert(u"body"_s, rtfOf(parts.body));
    if (draft.whole)
        values.texts.insert(u"whole"_s, rtfOf(*draft.whole));
    for (const TextOfDraft& each : kTexts)
        values.texts.insert(each.name.toString(), draft.letter.*each.text);
    values.dates.insert(u"date"_s, draft.letter.date);
    QStringList people;
    for (const Recipient& to : draft.recipients)
        people << recipientText(to);
    values.texts.insert(u"recipients"_s, people.join(kBetweenPeople));
    values.texts.insert(u"address type"_s, QString::number(int(draft.addressType)));
    if (draft.isAddressTyped)
        values.texts.insert(u"address"_s, kTyped.toString());
    return values;
}

std::optional<LetterDraft> draftFrom(const widgets::FieldValues& values)
{
    if (values.texts.isEmpty())
        return std::nullopt;
    LetterDraft draft;
    LetterParts& parts = draft.letter.parts;
    const QStringList openings = values.text(u"openings").split(kBetween);
    for (qsizetype line = 0; line < std::ssize(parts.openings); ++line)
        parts.openings.at(size_t(line)) = openings.value(line);
    const QStringList closings = values.text(u"closings").split(kBetween);
    for (qsizetype line = 0; line < std::ssize(parts.closings); ++line)
        parts.closings.at(size_t(line)) = closings.value(line);
    parts.ending = values.text(u"ending");
    parts.signature = values.text(u"signature");
    parts.body = textOf(values.text(u"body"));
    if (values.texts.contains(u"whole"_s))
        draft.whole = textOf(values.text(u"whole"));
    for (const TextOfDraft& each : kTexts)
        draft.letter.*each.text = values.text(each.name);
    draft.letter.date = values.date(u"date").value_or(QDate());
    for (const QString& person : values.text(u"recipients").split(kBetweenPeople, Qt::SkipEmptyParts)) {
        const QStringList of = person.split(kBetween);
        if (of.size() == kPartsOfARecipient)
            draft.recipients << Recipient{
                of[0].toLongLong(), of[1], of[2], {of[4], of[5], of[6], of[7], of[8], of[9]}, of[3]};
    }
    draft.addressType = AddressType(values.text(u"address type").toInt());
    draft.isAddressTyped = values.text(u"address") == kTyped;
    return draft;
}

} // namespace letters
