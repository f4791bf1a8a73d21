#include "formats/card_contact.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

constexpr QStringView kOfOneBook[]
    = {u"id", u"PhotLoc", u"selected", u"fmtree", u"gen_id", u"palm", u"code_1b"};

} // namespace

CardColumns::CardColumns(const jet::SchemaTable& contacts, QStringList nameViews)
    : m_nameViews(std::move(nameViews))
{
    for (const jet::SchemaColumn& column : contacts.columns) {
        const bool isOfOneBook = std::any_of(std::begin(kOfOneBook), std::end(kOfOneBook),
            [&](QStringView name) { return name.compare(column.name, Qt::CaseInsensitive) == 0; });
        if (isOfOneBook)
            continue;
        m_byProperty.insert(propertyOf(column.name), m_all.size());
        m_all.append({column.name, column.type, column.size});
    }
    for (int column = 0; column < m_all.size(); ++column)
        m_byName[size_t(placeOf(m_all[column].name))].push_back(column);
}

int CardColumns::placeOf(QStringView name)
{
    // Letters of both cases differ in one bit.
    constexpr int lower = 0x20;
    if (name.isEmpty())
        return 0;
    const auto letter = [&name](qsizetype at) { return name[at].unicode() | lower; };
    return int(name.size() * 37 + letter(0) * 11 + letter(name.size() / 2) * 3 + letter(name.size() - 1) * 5)
        % kPlaces;
}

const CardColumns::Column* CardColumns::find(QStringView name) const
{
    for (const int column : m_byName[size_t(placeOf(name))]) {
        if (name.compare(m_all[column].name, Qt::CaseInsensitive) == 0)
            return &m_all[column];
    }
    return nullptr;
}

const CardColumns::Column* CardColumns::ofProperty(QStringView property) const
{
    if (!property.startsWith(u"X-ORVANE-"))
        return nullptr;
    const auto found = m_byProperty.constFind(property.toString());
    return found == m_byProperty.constEnd() ? nullptr : &m_all[*found];
}

QString CardColumns::propertyOf(QStringView column)
{
    return u"X-ORVANE-"_s + column.toString().toUpper().replace(u'_', u'-').replace(u' ', u'-');
}

QString CardContact::text(QStringView column) const
{
    for (const Value& value : values) {
        if (column.size() == value.column.size() && column.compare(value.column, Qt::CaseInsensitive) == 0)
            return value.text;
    }
    return {};
}

void CardContact::set(QStringView column, const QString& text)
{
    const auto found = std::find_if(values.begin(), values.end(), [&](const Value& value) {
        return column.size() == value.column.size() && column.compare(value.column, Qt::CaseInsensitive) == 0;
    });
    if (found != values.end() && text.isEmpty())
        values.erase(found);
    else if (found != values.end())
        found->text = text;
    else if (!text.isEmpty())
        values.push_back({column.toString(), text});
}

QString pictureEnding(const QByteArray& bytes)
{
    struct Kind {
        QByteArrayView start;
        QLatin1StringView ending;
    };
    static constexpr Kind kinds[] = {
        {QByteArrayView("\xff\xd8\xff"), "jpg"_L1},
        {QByteArrayView("\x89PNG\r\n\x1a\n"), "png"_L1},
        {QByteArrayView("GIF8"), "gif"_L1},
        {QByteArrayView("BM"), "bmp"_L1},
    };
    for (const Kind& kind : kinds) {
        if (bytes.startsWith(kind.start))
            return kind.ending;
    }
    return bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP" ? u"webp"_s : QString();
}

} // namespace formats
