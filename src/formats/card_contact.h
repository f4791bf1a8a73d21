#pragma once

#include "jet/schema.h"

#include <array>
#include <vector>

#include <QByteArray>
#include <QHash>
#include <QStringList>

/// A contact on its way between a card and the book.
namespace formats {

/// The columns that a card may fill, as the schema has them. Those that say where a contact stands in one
/// book, such as its number or its place in the family tree, are not among them.
class CardColumns {
public:
    /// @param nameViews the words for the order of a name, which cards of this program have in their N line
    CardColumns(const jet::SchemaTable& contacts, QStringList nameViews);

    struct Column {
        QString name;
        jet::ColumnType type = jet::ColumnType::Text;
        int size = 255;
    };
    const QList<Column>& all() const { return m_all; }
    const Column* find(QStringView name) const; ///< in any case
    /// By the name of a property that this program made for a column: X-ORVANE-H-STD.
    const Column* ofProperty(QStringView property) const;
    const QStringList& nameViews() const { return m_nameViews; }

    static QString propertyOf(QStringView column);

private:
    QList<Column> m_all;
    /// By size and a few letters, as a card asks for dozens of names: columns of one place are compared.
    static constexpr int kPlaces = 256;
    static int placeOf(QStringView name);

    std::array<std::vector<int>, kPlaces> m_byName;
    QHash<QString, qsizetype> m_byProperty;
    QStringList m_nameViews;
};

/// A contact between a card and the book. Dates are "2026-06-15", perhaps with a time, switches "true".
struct CardContact {
    struct Value {
        QString column; ///< as the schema spells it
        QString text;
        friend bool operator==(const Value&, const Value&) = default;
    };
    std::vector<Value> values; ///< a column once; none is blank
    QByteArray photo;
    QStringList left; ///< what the book does not take of the card, and why, in plain words

    QString text(QStringView column) const;
    void set(QStringView column, const QString& text);
};

/// "jpg", "png" and so on, by the first bytes; empty for what is no picture that is known.
QString pictureEnding(const QByteArray& bytes);

} // namespace formats
