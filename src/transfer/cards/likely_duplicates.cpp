#include "transfer/cards/likely_duplicates.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

using namespace Qt::StringLiterals;

namespace transfer {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("transfer", text);
}

constexpr QStringView kPhones[]
    = {u"H_Ph1", u"h_ph2", u"h_ph3", u"B_Ph1", u"B_Ph2", u"B_ph3", u"w_Ph1", u"w_Ph2", u"w_ph3", u"Mobile"};
constexpr QStringView kMails[]
    = {u"H_email1", u"h_email2", u"b_email1", u"b_email2", u"w_email1", u"W_Email2"};
constexpr QStringView kBirthday = u"M_BD";

constexpr qsizetype kDigitsThatCount = 7;

QString contactPointsSql()
{
    QStringList columns{u"Name"_s};
    for (const QStringView column : kPhones)
        columns << column.toString();
    for (const QStringView column : kMails)
        columns << column.toString();
    return u"select "_s + columns.join(u',') + u',' + kBirthday.toString() + u" from cnt_main"_s;
}

QString nameKey(const QString& name)
{
    return name.simplified().toCaseFolded();
}

/// The last digits, so that a number with and without its country is one.
QString phoneKey(const QString& number)
{
    QString digits;
    for (auto c = number.crbegin(); c != number.crend() && digits.size() < kDigitsThatCount; ++c) {
        if (c->isDigit())
            digits.prepend(*c);
    }
    return digits.size() < kDigitsThatCount ? QString() : digits;
}

/// What somebody can be told by beside the name, by whatever gives the text of a column.
template <class TextOf> QStringList keysOf(const QString& name, TextOf textOf)
{
    QStringList keys;
    const auto add = [&](const QString& point) {
        if (!point.isEmpty())
            keys << name + u'\x1f' + point;
    };
    for (const QStringView column : kPhones)
        add(phoneKey(textOf(column)));
    for (const QStringView column : kMails)
        add(textOf(column).trimmed().toCaseFolded());
    add(textOf(kBirthday).left(10));
    return keys;
}

} // namespace

void markLikelyDuplicates(jet::Database& book, IncomingCards& incoming)
{
    QSet<QString> names;
    for (const IncomingCard& card : incoming.cards)
        names.insert(nameKey(card.contact.text(u"Name")));
    QSet<QString> known;
    for (jet::Recordset rows = book.openRecordset(contactPointsSql()); rows.hasRow(); rows.moveNext()) {
        const QString name = nameKey(rows.textAt(0));
        if (!names.contains(name))
            continue;
        for (const QString& key :
            keysOf(name, [&rows](QStringView column) { return rows.textOrEmpty(column); }))
            known.insert(key);
    }
    QHash<QString, size_t> met;
    for (size_t i = 0; i < incoming.cards.size(); ++i) {
        IncomingCard& card = incoming.cards[i];
        const QString name = nameKey(card.contact.text(u"Name"));
        for (const QString& key :
            keysOf(name, [&card](QStringView column) { return card.contact.text(column); })) {
            const auto before = met.constFind(key);
            if (known.contains(key)) {
                card.like = translated("a contact of the book");
            } else if (before == met.constEnd()) {
                met.insert(key, i);
            } else if (*before != i && card.like.isEmpty()) {
                const IncomingCard& first = incoming.cards[*before];
                card.like = incoming.sourceOf(first.file, first.number);
            }
        }
        card.isTicked = card.like.isEmpty();
    }
}

} // namespace transfer
