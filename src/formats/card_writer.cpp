#include "formats/card_writer.h"

#include "formats/vcard_lines.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

/// A column that a property of the standard stands for; types with "," between.
struct LineRow {
    QStringView column;
    QLatin1StringView name3;
    QLatin1StringView types3;
    QLatin1StringView name4;
    QLatin1StringView types4;
};
constexpr LineRow kLines[] = {
    {u"nick", "NICKNAME"_L1, {}, "NICKNAME"_L1, {}},
    {u"Company", "ORG"_L1, {}, "ORG"_L1, {}},
    {u"Job_Title", "TITLE"_L1, {}, "TITLE"_L1, {}},
    {u"H_Ph1", "TEL"_L1, "HOME,VOICE"_L1, "TEL"_L1, "home,voice"_L1},
    {u"h_ph2", "TEL"_L1, "HOME,VOICE"_L1, "TEL"_L1, "home,voice"_L1},
    {u"h_ph3", "TEL"_L1, "HOME,VOICE"_L1, "TEL"_L1, "home,voice"_L1},
    {u"B_Ph1", "TEL"_L1, "WORK,VOICE"_L1, "TEL"_L1, "work,voice"_L1},
    {u"B_Ph2", "TEL"_L1, "WORK,VOICE"_L1, "TEL"_L1, "work,voice"_L1},
    {u"B_ph3", "TEL"_L1, "WORK,VOICE"_L1, "TEL"_L1, "work,voice"_L1},
    {u"w_Ph1", "TEL"_L1, "WORK,VOICE"_L1, "TEL"_L1, "work,voice"_L1},
    {u"w_Ph2", "TEL"_L1, "WORK,VOICE"_L1, "TEL"_L1, "work,voice"_L1},
    {u"w_ph3", "TEL"_L1, "WORK,VOICE"_L1, "TEL"_L1, "work,voice"_L1},
    {u"Mobile", "TEL"_L1, "CELL"_L1, "TEL"_L1, "cell"_L1},
    {u"fax", "TEL"_L1, "WORK,FAX"_L1, "TEL"_L1, "work,fax"_L1},
    {u"H_email1", "EMAIL"_L1, "INTERNET,HOME"_L1, "EMAIL"_L1, "home"_L1},
    {u"h_email2", "EMAIL"_L1, "INTERNET,HOME"_L1, "EMAIL"_L1, "home"_L1},
    {u"b_email1", "EMAIL"_L1, "INTERNET,WORK"_L1, "EMAIL"_L1, "work"_L1},
    {u"b_email2", "EMAIL"_L1, "INTERNET,WORK"_L1, "EMAIL"_L1, "work"_L1},
    {u"w_email1", "EMAIL"_L1, "INTERNET,WORK"_L1, "EMAIL"_L1, "work"_L1},
    {u"W_Email2", "EMAIL"_L1, "INTERNET,WORK"_L1, "EMAIL"_L1, "work"_L1},
    {u"h_web", "URL"_L1, "HOME"_L1, "URL"_L1, "home"_L1},
    {u"B_Web", "URL"_L1, "WORK"_L1, "URL"_L1, "work"_L1},
    {u"W_web", "URL"_L1, "WORK"_L1, "URL"_L1, "work"_L1},
    {u"M_BD", "BDAY"_L1, {}, "BDAY"_L1, {}},
    {u"Anniv", "X-ANNIVERSARY"_L1, {}, "ANNIVERSARY"_L1, {}},
    {u"sex", "X-GENDER"_L1, {}, "GENDER"_L1, {}},
    {u"Spouse", "X-SPOUSE"_L1, {}, "RELATED"_L1, "spouse"_L1},
    {u"kid1", "X-CHILD"_L1, {}, "RELATED"_L1, "child"_L1},
    {u"kid2", "X-CHILD"_L1, {}, "RELATED"_L1, "child"_L1},
    {u"kid3", "X-CHILD"_L1, {}, "RELATED"_L1, "child"_L1},
    {u"Hobbies", {}, {}, "HOBBY"_L1, {}},
    {u"category1", "CATEGORIES"_L1, {}, "CATEGORIES"_L1, {}},
    {u"category2", "CATEGORIES"_L1, {}, "CATEGORIES"_L1, {}},
    {u"memo1", "NOTE"_L1, {}, "NOTE"_L1, {}},
};

constexpr QStringView kNameParts[] = {u"Last", u"First", u"Mid", u"Title"};
constexpr QStringView kAddressParts[] = {u"add1", u"add2", u"city", u"state", u"pin", u"country"};
struct AddressRow {
    QStringView prefix;
    QLatin1StringView type;
};
constexpr AddressRow kAddresses[] = {{u"h_", "home"_L1}, {u"b_", "work"_L1}, {u"w_", "work"_L1}};

class Writer {
public:
    Writer(const CardContact& contact, CardVersion version)
        : m_contact(contact)
        , m_isFour(version == CardVersion::Four)
    {
    }

    QByteArray write()
    {
        m_bytes = "BEGIN:VCARD\r\n";
        m_bytes += m_isFour ? "VERSION:4.0\r\n" : "VERSION:3.0\r\n";
        writeNames();
        for (const AddressRow& row : kAddresses)
            writeAddress(row);
        for (const LineRow& row : kLines)
            writeColumn(row);
        writeOwn();
        writePhoto();
        return m_bytes + "END:VCARD\r\n";
    }

private:
    void line(
        const QString& name, const QString& value, QLatin1StringView types = {}, QStringView column = {})
    {
        VCardLine written{{}, name, {}, value};
        if (!types.isEmpty())
            written.parameters.push_back({u"TYPE"_s, QString(types).split(u',')});
        if (m_isFour && name == "RELATED"_L1)
            written.parameters.push_back({u"VALUE"_s, {u"text"_s}});
        if (!column.isEmpty())
            written.parameters.push_back({u"X-ORVANE-COLUMN"_s, {column.toString()}});
        m_bytes += foldVCardLine(writeVCardLine(written));
    }

    QString take(QStringView column)
    {
        m_written << column.toString().toLower();
        return m_contact.text(column);
    }

    // Both lines have to be there; a contact without a name of its own gets what others would call it by.
    void writeNames()
    {
        QStringList parts;
        for (const QStringView part : kNameParts)
            parts << escapeVCardText(take(part));
        line(u"N"_s, parts.join(u';') + u';', {}, u"N");
        const QString name = take(u"Name");
        QString shown = name;
        for (const QStringView other : {u"First", u"Last", u"Company", u"H_email1"}) {
            if (shown.trimmed().isEmpty())
                shown = m_contact.text(other);
        }
        line(u"FN"_s, shown.isEmpty() ? u"?"_s : escapeVCardText(shown), {},
            name.isEmpty() ? QStringView() : QStringView(u"Name"));
    }

    void writeAddress(const AddressRow& row)
    {
        QStringList parts;
        for (const QStringView part : kAddressParts)
            parts << escapeVCardText(take(row.prefix.toString() + part.toString()));
        if (std::all_of(parts.begin(), parts.end(), [](const QString& part) { return part.isEmpty(); }))
            return;
        const QString street = parts[1].isEmpty() ? parts[0] : parts[0] + u',' + parts[1];
        line(u"ADR"_s, u";;"_s + street + u';' + parts.mid(2).join(u';'), row.type, row.prefix);
    }

    void writeColumn(const LineRow& row)
    {
        const QLatin1StringView name = m_isFour ? row.name4 : row.name3;
        if (name.isEmpty())
            return;
        QString text = take(row.column);
        if (text.isEmpty())
            return;
        if (row.column == u"sex" && m_isFour)
            text = sexLetter(text) + u';' + escapeVCardText(text);
        else if (row.column == u"M_BD" || row.column == u"Anniv")
            text = dateOf(text);
        else
            text = escapeVCardText(text);
        line(name, text, m_isFour ? row.types4 : row.types3, row.column);
    }

    static QString sexLetter(const QString& text)
    {
        return text == "Male"_L1 ? u"M"_s : text == "Female"_L1 ? u"F"_s : u"O"_s;
    }

    /// "2026-06-15 10:30:00" as the version has it.
    QString dateOf(QString stored) const
    {
        stored.replace(u' ', u'T');
        return m_isFour ? stored.remove(u'-').remove(u':') : stored;
    }

    void writeOwn()
    {
        for (const CardContact::Value& value : m_contact.values) {
            if (!m_written.contains(value.column.toLower()) && !value.text.isEmpty())
                line(CardColumns::propertyOf(value.column), escapeVCardText(value.text));
        }
    }

    void writePhoto()
    {
        const QString ending = pictureEnding(m_contact.photo);
        if (ending.isEmpty())
            return;
        const QString kind = ending == "jpg"_L1 ? u"jpeg"_s : ending;
        const QString base64 = QString::fromLatin1(m_contact.photo.toBase64());
        if (m_isFour)
            m_bytes += foldVCardLine(u"PHOTO:data:image/"_s + kind + u";base64,"_s + base64);
        else
            m_bytes += foldVCardLine(u"PHOTO;ENCODING=b;TYPE="_s + kind.toUpper() + u':' + base64);
    }

    const CardContact& m_contact;
    bool m_isFour;
    QByteArray m_bytes;
    QStringList m_written; ///< columns, in lower case
};

} // namespace

QByteArray cardOf(const CardContact& contact, CardVersion version)
{
    return Writer(contact, version).write();
}

} // namespace formats
