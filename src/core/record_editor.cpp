#include "core/record_editor.h"

#include "core/save_failure.h"
#include "platform/message_boxes.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace core {

RecordEditor::RecordEditor(Context& context, const QString& table)
    : m_context(context)
    , m_table(table)
{
}

QString RecordEditor::rowSql(qint64 id) const
{
    return u"Select * from %1 where id=%2"_s.arg(m_table, QString::number(id));
}

jet::Recordset RecordEditor::load(qint64 id)
{
    startNew();
    if (id == 0)
        return {};
    jet::Recordset row = m_context.data.openRecordset(rowSql(id));
    if (row.hasRow())
        take(row);
    return row;
}

void RecordEditor::take(const jet::Recordset& row)
{
    m_id = row.number(u"id");
    m_loaded = LoadedRow(row);
}

void RecordEditor::startNew()
{
    m_id = 0;
    m_loaded = {};
}

jet::Recordset RecordEditor::open() const
{
    return m_context.data.openRecordset(rowSql(m_id));
}

bool RecordEditor::mayOverwrite(const jet::Recordset& stored, const QList<ColumnEdit>& edits) const
{
    const auto clashes = m_loaded.clashes(stored, edits);
    return clashes.isEmpty()
        || m_context.services.boxes.ask(
               clashQuestion(clashes), m_context.shared.AppTitle, platform::Icon::Warning)
        == platform::Answer::Yes;
}

bool RecordEditor::write(jet::Recordset& stored, const QList<ColumnEdit>& edits) const
{
    stored.edit();
    m_loaded.assign(stored, edits);
    return stored.update();
}

RecordEditor::Outcome RecordEditor::store(const QList<ColumnEdit>& edits) const
{
    jet::Recordset row = open();
    if (!row.isValid()) {
        tellFailedSave(m_context);
        return Outcome::NotStored;
    }
    if (!row.hasRow())
        return Outcome::Gone;
    if (!mayOverwrite(row, edits))
        return Outcome::NotStored;
    if (write(row, edits))
        return Outcome::Stored;
    tellFailedSave(m_context);
    return Outcome::NotStored;
}

void RecordEditor::sayGone() const
{
    m_context.services.boxes.warning(QCoreApplication::translate("core",
                                         "This contact was deleted while you were changing it. What you "
                                         "entered is still here."),
        m_context.shared.AppTitle);
}

} // namespace core
