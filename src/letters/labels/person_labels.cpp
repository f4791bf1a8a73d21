#include "letters/labels/person_labels.h"

#include "core/sql_text.h"

using namespace Qt::StringLiterals;

namespace letters {

namespace {

QString columnsOf(output::AddressSet address)
{
    return u"b.name,b.company,b."_s + output::addressColumns(address).join(u",b."_s);
}

} // namespace

// The work table has one set of columns; the rows are given back under the names of the address they hold.
jet::Recordset personLabels(
    jet::Database& data, const QString& name, qint64 id, output::AddressSet address, int labels)
{
    jet::Recordset person
        = data.openRecordset(u"SELECT "_s + columnsOf(address) + u" FROM [cnt_main] b WHERE "_s
            + (id != 0 ? u"b.id="_s + QString::number(id) : u"b.name='"_s + core::inQuotes(name) + u'\''));
    if (!person.hasRow())
        return person;
    const QStringList asked = output::addressColumns(address);
    const QStringList kept = output::addressColumns(output::AddressSet::Home);
    {
        const jet::Upkeep byItself(data);
        jet::Batch batch(data);
        data.execute(u"delete * from OV_temp");
        jet::Recordset work = data.openRecordset(u"select * from [OV_temp]");
        for (int label = 0; label < labels; ++label) {
            work.addNew();
            work.set(u"name", person.textOrEmpty(u"name"));
            work.set(u"company", person.textOrEmpty(u"company"));
            for (qsizetype column = 0; column < kept.size(); ++column)
                work.set(kept[column], person.textOrEmpty(asked[column]));
            work.update();
        }
        if (!batch.commit())
            return {};
    }
    QString columns = u"name,company"_s;
    for (qsizetype column = 0; column < kept.size(); ++column)
        columns += u','
            + (kept[column] == asked[column] ? kept[column] : kept[column] + u" AS "_s + asked[column]);
    return data.openRecordset(u"select "_s + columns + u" from [OV_temp]"_s);
}

} // namespace letters
