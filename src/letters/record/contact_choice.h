#pragma once

#include "jet/database.h"

#include <QLineEdit>

class QCompleter;
class QStandardItemModel;

namespace letters {

/// A field for a person: contacts whose names begin as typed are offered, with their cities, and one that is
/// picked is known by its id. Anybody else may be typed as well.
class ContactChoice : public QLineEdit {
    Q_OBJECT

public:
    explicit ContactChoice(jet::Database& book, QWidget* parent = nullptr);

    void setContact(qint64 id, const QString& name);
    /// 0 for somebody whom the book does not have. A name that was typed whole and that one contact bears
    /// alone is that contact.
    qint64 contactId() const;

Q_SIGNALS:
    void contactPicked();

private:
    void suggest(const QString& typed);

    jet::Database& m_data;
    QStandardItemModel* m_found;
    QCompleter* m_completer;
    qint64 m_id = 0;
    QString m_name; ///< as it was picked; another text is another person
};

} // namespace letters
