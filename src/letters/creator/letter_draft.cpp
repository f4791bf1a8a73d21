#include "letters/creator/letter_draft.h"

#include "formats/rtf_reader.h"
#include "formats/rtf_writer.h"

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr QChar kBetween(0x1f); ///< the parts of an address
constexpr QChar kBetweenPeople(0x1e);
constexpr qsizetype kPartsOfAStranger = 8;

QString rtfOf(const formats::RichText& text)
{
    return QString::fromLatin1(formats::writeRtf(text));
}

formats::RichText textOf(const QString& rtf)
{
    return formats::readRtf(rtf.toLatin1()).value_or(formats::RichText());
}

QString strangerText(const Recipient& to)
{
    const LetterAddress& at = to.address;
    return QStringList{to.name, to.salutation, at.line1, at.line2, at.city, at.state, at.country, at.pin}
        .join(kBetween);
}

} // namespace

widgets::FieldValues draftValues(const LetterDraft& draft)
{
    widgets::FieldValues values;
    const auto& openings = draft.parts.openings;
    const auto& closings = draft.parts.closings;
    values.texts.insert(u"openings"_s, QStringList(openings.begin(), openings.end()).join(kBetween));
    values.texts.insert(u"closings"_s, QStringList(closings.begin(), closings.end()).join(kBetween));
    values.texts.insert(u"ending"_s, draft.parts.ending);
    values.texts.insert(u"signature"_s, draft.parts.signature);
    values.texts.insert(u"body"_s, rtfOf(draft.parts.body));
    if (draft.whole)
        values.texts.insert(u"whole"_s, rtfOf(*draft.whole));
    QStringList ids;
    for (const qint64 id : draft.contacts)
        ids << QString::number(id);
    values.texts.insert(u"contacts"_s, ids.join(u','));
    QStringList strangers;
    for (const Recipient& to : draft.strangers)
        strangers << strangerText(to);
    values.texts.insert(u"strangers"_s, strangers.join(kBetweenPeople));
    return values;
}

std::optional<LetterDraft> draftFrom(const widgets::FieldValues& values)
{
    if (values.texts.isEmpty())
        return std::nullopt;
    LetterDraft draft;
    const QStringList openings = values.text(u"openings").split(kBetween);
    for (qsizetype line = 0; line < std::ssize(draft.parts.openings); ++line)
        draft.parts.openings.at(size_t(line)) = openings.value(line);
    const QStringList closings = values.text(u"closings").split(kBetween);
    for (qsizetype line = 0; line < std::ssize(draft.parts.closings); ++line)
        draft.parts.closings.at(size_t(line)) = closings.value(line);
    draft.parts.ending = values.text(u"ending");
    draft.parts.signature = values.text(u"signature");
    draft.parts.body = textOf(values.text(u"body"));
    if (values.texts.contains(u"whole"_s))
        draft.whole = textOf(values.text(u"whole"));
    for (const QString& id : values.text(u"contacts").split(u',', Qt::SkipEmptyParts))
        draft.contacts << id.toLongLong();
    for (const QString& stranger : values.text(u"strangers").split(kBetweenPeople, Qt::SkipEmptyParts)) {
        const QStringList parts = stranger.split(kBetween);
        if (parts.size() == kPartsOfAStranger)
            draft.strangers << Recipient{
                0, parts[0], parts[1], {parts[2], parts[3], parts[4], parts[5], parts[6], parts[7]}, {}};
    }
    return draft;
}

} // namespace letters
