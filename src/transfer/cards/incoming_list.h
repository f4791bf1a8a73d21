#pragma once

#include "transfer/cards/card_files.h"

#include <QAbstractTableModel>

namespace transfer {

/// The cards that could come in, a row a card, with a tick at those that shall.
class IncomingList : public QAbstractTableModel {
    Q_OBJECT

public:
    /// @param datePattern how days are shown
    IncomingList(QString datePattern, QObject* parent)
        : QAbstractTableModel(parent)
        , m_datePattern(std::move(datePattern))
    {
    }

    void setCards(IncomingCards cards);
    const IncomingCards& cards() const { return m_cards; }
    int tickedCount() const { return m_ticked; }
    int likeCount() const; ///< that may be there already
    void tickAll(bool ticked);
    /// What a card would store, a line a value, as plain text.
    QString detail(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void ticked();

private:
    QString m_datePattern;
    IncomingCards m_cards;
    int m_ticked = 0;
};

} // namespace transfer
