#include "core/loaded_row.h"

#include "core/contact_category.h"
#include "jet/date_text.h"

#include <QCoreApplication>
#include <QDate>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr qsizetype kMostShown = 60;
constexpr qsizetype kMostClashes = 8;

QString textOf(const QVariant& value)
{
    return value.typeId() == QMetaType::QDate ? jet::isoDate(value.toDate()) : value.toString();
}

QString shortened(const QString& text)
{
    const QString line = text.simplified();
    return line.size() > kMostShown ? line.left(kMostShown) + u'…' : line;
}

/// Null and "" look alike on a form, and "Undefined" is what the program's own upkeep writes for them.
bool looksLike(const QVariant& one, const QVariant& other)
{
    const QString first = textOf(one);
    const QString second = textOf(other);
    return first == second || (first.trimmed().isEmpty() && second == orUndefined({}));
}

} // namespace

LoadedRow::LoadedRow(const jet::Recordset& row)
{
    const QStringList columns = row.columns();
    for (qsizetype column = 0; column < columns.size(); ++column)
        m_values.insert(columns[column].toLower(), row.value(int(column)));
}

bool LoadedRow::isAsLoaded(const jet::Recordset& stored, const QString& column) const
{
    const auto loaded = m_values.constFind(column.toLower());
    return loaded == m_values.constEnd() || looksLike(*loaded, stored.value(column));
}

QList<EditClash> LoadedRow::clashes(const jet::Recordset& stored, const QList<ColumnEdit>& edits) const
{
    QList<EditClash> found;
    for (const ColumnEdit& edit : edits) {
        const QVariant now = stored.value(edit.column);
        if (edit.isTouched && !edit.isAlways && !isAsLoaded(stored, edit.column)
            && !looksLike(now, edit.value))
            found.append({edit.label.isEmpty() ? edit.column : edit.label, textOf(edit.value), textOf(now)});
    }
    return found;
}

void LoadedRow::assign(jet::Recordset& stored, const QList<ColumnEdit>& edits) const
{
    // Asked before the first assignment, since that makes a row look other than it is stored.
    QList<const ColumnEdit*> written;
    for (const ColumnEdit& edit : edits) {
        if (edit.isAlways || edit.isTouched || isAsLoaded(stored, edit.column))
            written << &edit;
    }
    for (const ColumnEdit* edit : written)
        stored.set(edit->column, edit->value);
}

QString clashQuestion(const QList<EditClash>& clashes)
{
    const auto translated = [](const char* text) { return QCoreApplication::translate("core", text); };
    QString text = translated("This contact was changed elsewhere while you were changing it:") + u'\n';
    for (const EditClash& clash : clashes.first(qMin(kMostClashes, clashes.size())))
        text += u'\n'
            + translated("%1: you entered \"%2\", stored is \"%3\"")
                  .arg(clash.label, shortened(clash.mine), shortened(clash.stored));
    if (clashes.size() > kMostClashes)
        text += u'\n' + translated("and %1 more").arg(clashes.size() - kMostClashes);
    return text + u"\n\n"_s
        + translated("Do you want to replace what is stored by what you entered? With No nothing is stored "
                     "yet, and the form stays as it is.");
}

} // namespace core
