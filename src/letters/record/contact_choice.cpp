#include "letters/record/contact_choice.h"

#include "core/sql_text.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QStandardItemModel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr int kMostOffered = 40;
constexpr int kName = Qt::UserRole + 1; ///< what stays of a row that is picked

QString namesFrom(const QString& beginning)
{
    return u"select id,name,h_city from cnt_main where name like '%1*' order by name"_s.arg(
        core::likeText(beginning));
}

} // namespace

ContactChoice::ContactChoice(jet::Database& book, QWidget* parent)
    : QLineEdit(parent)
    , m_data(book)
    , m_found(new QStandardItemModel(this))
    , m_completer(new QCompleter(m_found, this))
{
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setCompletionRole(kName);
    m_completer->setMaxVisibleItems(12);
    setCompleter(m_completer);
    connect(this, &QLineEdit::textEdited, this, &ContactChoice::suggest);
    connect(m_completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
        [this](const QModelIndex& index) {
            setContact(index.data(Qt::UserRole).toLongLong(), index.data(kName).toString());
            Q_EMIT contactPicked();
        });
}

void ContactChoice::setContact(qint64 id, const QString& name)
{
    m_id = id;
    m_name = name;
    setText(name);
}

qint64 ContactChoice::contactId() const
{
    const QString typed = text().trimmed();
    if (m_id != 0 && typed == m_name.trimmed())
        return m_id;
    if (typed.isEmpty())
        return 0;
    const jet::Recordset named
        = m_data.openRecordset(u"select id from cnt_main where name='%1'"_s.arg(core::inQuotes(typed)));
    return named.count() == 1 ? named.number(u"id") : 0;
}

void ContactChoice::suggest(const QString& typed)
{
    m_found->clear();
    if (typed.trimmed().isEmpty())
        return;
    const jet::Recordset people = m_data.openRecordset(namesFrom(typed));
    for (int row = 0; row < std::min(people.count(), kMostOffered); ++row) {
        // Two of one name are told apart by the town.
        const QString name = people.textAt(row, 1);
        const QString city = people.textAt(row, 2).simplified();
        auto* item = new QStandardItem(city.isEmpty() ? name : name + u" \u2013 "_s + city);
        item->setData(people.valueAt(row, 0), Qt::UserRole);
        item->setData(name, kName);
        m_found->appendRow(item);
    }
}

} // namespace letters
