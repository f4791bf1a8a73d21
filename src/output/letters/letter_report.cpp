#include "output/letters/letter_report.h"

#include "output/labels/label_sheet.h"

#include <QCoreApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr double mm = kTwipsAMillimetre;
constexpr double inch = kTwipsAnInch;

/// Where things stand on a paper, from its upper edge.
struct Places {
    Paper paper;
    double returnAddress; ///< small, above the address and in the window with it
    double address;
    double date; ///< the first line below the window
};
constexpr Places kA4{{210 * mm, 297 * mm, 25 * mm}, 57.5 * mm, 62.7 * mm, 97 * mm};
constexpr Places kLetter{{8.5 * inch, 11 * inch, 1 * inch}, 1.95 * inch, 2.12 * inch, 3.35 * inch};

constexpr double kTextScale = 11.0 / 9; ///< letters of 11 points

QString say(const char* text)
{
    return QCoreApplication::translate("output", text);
}

/// The rows, and beside them what is the same for all: what a person has typed is never taken for a column.
class LetterRows final : public ReportSource {
public:
    LetterRows(const LetterLook& look, std::shared_ptr<const ReportSource> rows)
        : m_rows(std::move(rows))
        , m_bodyField(m_rows->field(u"Body"_s))
        , m_personField(m_rows->field(u"person"_s))
        , m_readers(look.readers)
        , m_isGreeted(look.isGreetedInBody)
        , m_body(look.body)
    {
        set(u"sender"_s, look.senderName);
        set(u"sender address"_s, look.senderAddress.join(u'\n'));
        set(u"sender line"_s, (QStringList{look.senderName} << look.senderAddress).join(u" \u00b7 "_s));
        set(u"address line"_s, look.senderAddress.join(u" \u00b7 "_s));
        set(u"date"_s, look.date);
        set(u"greeting"_s, m_isGreeted ? QString() : look.greeting);
        set(u"closing"_s, look.closing.join(u'\n'));
        set(u"ending"_s, look.ending);
        set(u"signature"_s, look.signature);
    }

    int count() const override { return m_rows->count(); }
    int field(const QString& column) const override
    {
        if (column == u"reader")
            return m_personField < 0 ? -1 : kReader;
        const auto own = static_cast<int>(m_names.indexOf(column));
        return own >= 0 ? kOwn + own : m_rows->field(column);
    }
    QString text(int row, int field) const override
    {
        if (field == kReader) {
            if (m_isGreeted)
                return {};
            const QString reader = m_readers.value(row);
            return reader.trimmed().isEmpty() ? m_rows->text(row, m_personField) : reader;
        }
        if (field >= kOwn)
            return m_texts[field - kOwn];
        return field == m_bodyField && !m_body.isEmpty() ? m_body.plain() : m_rows->text(row, field);
    }
    const formats::RichText* looks(int /*row*/, int field) const override
    {
        return field >= 0 && field == m_bodyField && !m_body.isEmpty() ? &m_body : nullptr;
    }

private:
    static constexpr int kReader = 1000; ///< above the columns of a table
    static constexpr int kOwn = 1001;

    void set(const QString& name, const QString& text)
    {
        m_names << name;
        m_texts << text;
    }

    std::shared_ptr<const ReportSource> m_rows;
    int m_bodyField;
    int m_personField;
    QStringList m_readers;
    bool m_isGreeted; ///< by the text itself
    formats::RichText m_body;
    QStringList m_names;
    QStringList m_texts;
};

using Lines = std::vector<LineRule>;

LineRule line(const QString& text, TextRole role = TextRole::Value, Align align = Align::Left)
{
    return {{{text, 1, role, align}}};
}

LineRule blank()
{
    return line(u" "_s);
}

void addAddress(Lines& lines, const Places& places)
{
    lines.push_back(line(u"{person}"_s));
    lines.back().at = places.address;
    const bool isUSLetter = &places == &kLetter;
    for (const QString& text :
        {u"{Add1}"_s, u"{Add2}"_s, isUSLetter ? u"{city}, {State}  {zip}"_s : u"{city}  {zip}"_s,
            isUSLetter ? QString() : u"{State}"_s, u"{Country}"_s}) {
        if (!text.isEmpty())
            lines.push_back(line(text));
    }
}

void addText(Lines& lines)
{
    lines.insert(lines.end(), {blank(), line(u"{greeting} {reader}"_s), blank(), line(u"{Body}"_s), blank()});
    lines.push_back(line(u"{closing}"_s));
}

Lines headed(const Places& places)
{
    Lines lines{line(u"{sender}"_s, TextRole::Title, Align::Center),
        line(u"{address line}"_s, TextRole::Quiet, Align::Center)};
    lines.back().isRuled = true;
    addAddress(lines, places);
    lines.push_back(line(u"{date}"_s, TextRole::Value, Align::Right));
    lines.back().at = places.date;
    addText(lines);
    lines.insert(lines.end(), {blank(), line(u"{ending}"_s), blank(), blank(), line(u"{signature}"_s)});
    return lines;
}

/// A line whose text begins in the middle of the paper.
LineRule rightHalf(const QString& text, TextRole role = TextRole::Value)
{
    return {{{u" "_s}, {text, 1, role}}};
}

Lines classic(const Places& places)
{
    Lines lines{
        rightHalf(u"{sender}"_s, TextRole::Strong), rightHalf(u"{sender address}"_s, TextRole::Quiet)};
    addAddress(lines, places);
    lines.push_back(rightHalf(u"{date}"_s));
    lines.back().at = places.date;
    addText(lines);
    lines.insert(
        lines.end(), {blank(), rightHalf(u"{ending}"_s), blank(), blank(), rightHalf(u"{signature}"_s)});
    return lines;
}

Lines modern(const Places& places)
{
    Lines lines{line(u"{sender}"_s, TextRole::GroupTitle)};
    lines.push_back(line(u"{sender line}"_s, TextRole::Label));
    lines.back().at = places.returnAddress;
    addAddress(lines, places);
    lines.push_back(line(u"{date}"_s, TextRole::Quiet));
    lines.back().at = places.date;
    addText(lines);
    lines.insert(
        lines.end(), {blank(), line(u"{ending}"_s), blank(), line(u"{signature}"_s, TextRole::Strong)});
    return lines;
}

} // namespace

Report letterReport(const LetterLook& look, std::shared_ptr<const ReportSource> rows)
{
    const Places& places = look.isUSLetter ? kLetter : kA4;
    Report report;
    report.title = say("Letters");
    report.fileStem = u"Letters"_s;
    report.printDate = look.date;
    report.source = std::make_shared<LetterRows>(look, std::move(rows));
    report.paper = places.paper;
    report.textScale = kTextScale;
    report.hasPageMarks = false;
    report.rowsBeginPages = true;
    switch (look.style) {
    case LetterStyle::Letterhead: report.detail.lines = headed(places); break;
    case LetterStyle::Classic: report.detail.lines = classic(places); break;
    case LetterStyle::Modern: report.detail.lines = modern(places); break;
    }
    return report;
}

} // namespace output
