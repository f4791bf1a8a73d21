#include "transfer/cards/incoming_list.h"

#include "jet/date_text.h"
#include "transfer/cards/column_words.h"

#include "widgets/theme.h"

#include <QColor>

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace transfer {

namespace {

constexpr qsizetype kCellShown = 200;
constexpr qsizetype kDetailShown = 20'000;

QString filled(const formats::CardContact& contact, std::initializer_list<QStringView> columns)
{
    QStringList texts;
    for (const QStringView column : columns) {
        const QString text = contact.text(column);
        if (!text.isEmpty())
            texts << text;
    }
    return texts.join(u", "_s);
}

QString nameOf(const IncomingCard& card)
{
    return filled(card.contact, {u"Name"});
}

using C = const IncomingCard&;

struct Column {
    const char* heading;
    QString (*text)(C card);
};
constexpr Column kColumns[] = {
    {QT_TRANSLATE_NOOP("transfer::IncomingList", "Name"), nameOf},
    {QT_TRANSLATE_NOOP("transfer::IncomingList", "May be there already"), [](C card) { return card.like; }},
    {QT_TRANSLATE_NOOP("transfer::IncomingList", "Company"),
        [](C card) { return card.contact.text(u"Company"); }},
    {QT_TRANSLATE_NOOP("transfer::IncomingList", "Telephone"),
        [](C card) {
            return filled(card.contact,
                {u"Mobile", u"H_Ph1", u"h_ph2", u"h_ph3", u"B_Ph1", u"B_Ph2", u"B_ph3", u"w_Ph1", u"w_Ph2",
                    u"w_ph3"});
        }},
    {QT_TRANSLATE_NOOP("transfer::IncomingList", "E-mail"),
        [](C card) {
            return filled(
                card.contact, {u"H_email1", u"h_email2", u"b_email1", u"b_email2", u"w_email1", u"W_Email2"});
        }},
    {QT_TRANSLATE_NOOP("transfer::IncomingList", "Birthday"),
        [](C card) { return card.contact.text(u"M_BD"); }},
    {QT_TRANSLATE_NOOP("transfer::IncomingList", "Town"),
        [](C card) {
            return filled(card.contact, {u"h_city", u"b_city", u"w_city"});
        }},
    {QT_TRANSLATE_NOOP("transfer::IncomingList", "Category"),
        [](C card) { return card.contact.text(u"category1"); }},
    {QT_TRANSLATE_NOOP("transfer::IncomingList", "Note"),
        [](C card) { return card.contact.text(u"memo1").left(kCellShown).simplified(); }},
};
constexpr int kLikeColumn = 1;
constexpr int kDayColumn = 5;

} // namespace

void IncomingList::setCards(IncomingCards cards)
{
    beginResetModel();
    m_cards = std::move(cards);
    m_ticked = int(std::count_if(
        m_cards.cards.begin(), m_cards.cards.end(), [](const IncomingCard& card) { return card.isTicked; }));
    endResetModel();
    Q_EMIT ticked();
}

int IncomingList::likeCount() const
{
    return int(std::count_if(m_cards.cards.begin(), m_cards.cards.end(),
        [](const IncomingCard& card) { return !card.like.isEmpty(); }));
}

void IncomingList::tickAll(bool tick)
{
    for (IncomingCard& card : m_cards.cards)
        card.isTicked = tick;
    m_ticked = tick ? rowCount() : 0;
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
    Q_EMIT ticked();
}

QString IncomingList::detail(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    const IncomingCard& card = m_cards.cards[size_t(row)];
    QStringList lines{tr("From %1").arg(m_cards.sourceOf(card.file, card.number))};
    const auto shownText = [this](const formats::CardContact::Value& value) {
        const bool isDate = value.column == u"M_BD" || value.column == u"Anniv";
        return isDate ? jet::formatDate(jet::dayOfIso(value.text), m_datePattern) : value.text;
    };
    for (const auto& value : card.contact.values)
        lines << columnWord(value.column) + u": "_s + shownText(value).left(kDetailShown);
    if (!card.photoFile.isEmpty())
        lines << tr("with a picture");
    return lines.join(u'\n');
}

int IncomingList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_cards.cards.size());
}

int IncomingList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(std::size(kColumns));
}

QVariant IncomingList::data(const QModelIndex& index, int role) const
{
    const IncomingCard& card = m_cards.cards[size_t(index.row())];
    if (role == Qt::DisplayRole) {
        const QString text = kColumns[index.column()].text(card).left(kCellShown);
        const QDate day = index.column() == kDayColumn ? jet::dayOfIso(text) : QDate();
        return day.isValid() ? jet::formatDate(day, m_datePattern) : text;
    }
    if (role == Qt::CheckStateRole && index.column() == 0)
        return card.isTicked ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::ForegroundRole && index.column() == kLikeColumn)
        return widgets::warningColor();
    return {};
}

bool IncomingList::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != 0)
        return false;
    bool& isTicked = m_cards.cards[size_t(index.row())].isTicked;
    const bool now = value.toInt() == Qt::Checked;
    m_ticked += int(now) - int(isTicked);
    isTicked = now;
    Q_EMIT dataChanged(index, index, {role});
    Q_EMIT ticked();
    return true;
}

Qt::ItemFlags IncomingList::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return index.column() == 0 ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant IncomingList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return tr(kColumns[section].heading);
}

} // namespace transfer
