#include "letters/creator/letter_merge.h"

#include "formats/rtf_writer.h"
#include "jet/date_text.h"

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr QStringView kDataFile = u"C:\\DataDoc.doc";
constexpr QStringView kHeader = u"Name, Address1, Address2,City,State,Zip,Country";

QString dayOf(const QDate& date)
{
    return jet::formatDate(date, u"dd-MMM-yyyy");
}

} // namespace

std::optional<platform::MergeResult> mergeLetters(platform::WordProcessor& words,
    const formats::RichText& text, const QList<Recipient>& recipients, const QString& folder,
    const QDate& today)
{
    if (!words.create())
        return std::nullopt;
    QList<QStringList> rows;
    for (const Recipient& to : recipients) {
        const LetterAddress& address = to.address;
        rows << QStringList{
            to.name, address.line1, address.line2, address.city, address.state, address.pin, address.country};
    }
    if (const QString whyNot = words.setData(kDataFile, kHeader.toString(), rows); !whyNot.isEmpty())
        return platform::MergeResult{.whyNot = whyNot};
    struct Step {
        QString field;
        QString after;
    };
    words.typeText(u"Dear "_s);
    for (const Step& step : {Step{u"Name"_s, u"     "_s}, Step{u"Address1"_s, {}}, Step{u"Address2"_s, {}},
             Step{u"City"_s, u","_s}, Step{u"State"_s, u"-"_s}, Step{u"Zip"_s, {}}}) {
        if (step.field != u"Name")
            words.typeText(u"\n"_s);
        words.typeField(step.field);
        if (!step.after.isEmpty())
            words.typeText(step.after);
    }
    words.typeText(u"\n"_s);
    words.typeParagraphs(text);
    auto merged = words.run(folder, u"Letters "_s + dayOf(today));
    if (merged)
        words.show();
    return merged;
}

QByteArray letterFile(const QList<formats::RichText>& letters, const QString& title, const QDate& today)
{
    QList<formats::RichText> pages = letters;
    if (!pages.isEmpty()) {
        formats::TextParagraph heading;
        heading.runs = {{title + u" - "_s + dayOf(today), {.isBold = true}}};
        pages.first().paragraphs.prepend(heading);
    }
    return formats::writeRtf(pages);
}

} // namespace letters
