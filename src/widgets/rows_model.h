#pragma once

#include "jet/recordset.h"
#include "widgets/heading_grid.h"

#include <QAbstractTableModel>
#include <QHash>

namespace widgets {

/// The rows behind a heading grid: a recordset, or a list of texts. Texts are fetched one by one as a view
/// asks. A "source column" is one of the recordset or list, a "column" one under a heading.
class RowsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;
    using Wording = std::function<QString(const QVariant&)>;

    void setHeadings(QList<Heading> headings, const QStringList& columns);
    void fill(jet::Recordset rows);
    void setRows(const QList<QStringList>& rows, const QStringList& names);
    void setKeyColumn(const QString& name);
    void showAs(const QString& name, Wording wording);

    const QList<Heading>& headings() const { return m_headings; }
    bool showsNothing(int column) const { return m_sources.value(column, -1) < 0; }
    int columnOf(const QString& name) const; ///< -1 when no heading stands over it
    QString text(int row, const QString& name) const;
    qint64 keyAt(int row) const;
    int rowOf(qint64 key) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void pairOff();
    int sourceCount() const;
    int sourceOf(const QString& name) const;
    QString sourceText(int row, int source) const;
    qint64 sourceNumber(int row, int source) const;

    QList<Heading> m_headings;
    QStringList m_columns; ///< as given for the headings
    QList<int> m_sources; ///< under each heading, -1 for none
    QString m_keyColumn;
    int m_keySource = -1; ///< of the key column, or of "id"
    QHash<QString, Wording> m_wordings; ///< by lower-case name
    QHash<int, Wording> m_wordingsBySource;

    jet::Recordset m_recordset;
    bool m_fromList = true;
    QList<QStringList> m_rows;
    QStringList m_names;
};

} // namespace widgets
