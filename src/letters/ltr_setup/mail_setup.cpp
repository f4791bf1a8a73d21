#include "letters/ltr_setup/mail_setup.h"

#include "core/sql_text.h"

using namespace Qt::StringLiterals;

namespace letters {

namespace {

/// Goes on in the first row of a recordset, or begins one.
void editOrAdd(jet::Recordset& rows)
{
    if (rows.hasRow())
        rows.edit();
    else
        rows.addNew();
}

QString journalColumn(Noted what, bool isSub)
{
    if (what == Noted::Letters)
        return isSub ? u"ltrsub"_s : u"ltrcat"_s;
    return isSub ? u"emilsub"_s : u"emilcat"_s;
}

QString settingsSql()
{
    return u"Select * from cntb_setup"_s;
}

} // namespace

QString mailFieldsSql()
{
    return u"Select * from cnt_EmailShow"_s;
}

bool setMailField(jet::Database& data, const QString& field, bool isShown)
{
    jet::Recordset rows = data.openRecordset(mailFieldsSql());
    if (!rows.findFirst(u"Fldname='"_s + core::inQuotes(field) + u'\''))
        return false;
    rows.edit();
    rows.set(u"show", isShown);
    return rows.update();
}

QStringList signatureOf(jet::Database& data)
{
    const jet::Recordset rows = data.openRecordset(u"select * from CNT_EMAILCSTM"_s);
    QStringList lines;
    for (int line = 1; line <= kSignatureLines; ++line)
        lines << rows.textOrEmpty(u'f' + QString::number(line));
    return lines;
}

bool storeSignature(jet::Database& data, const QStringList& lines)
{
    jet::Recordset rows = data.openRecordset(u"select * from CNT_EMAILCSTM"_s);
    editOrAdd(rows);
    for (int line = 1; line <= kSignatureLines; ++line)
        rows.set(u'f' + QString::number(line), lines.value(line - 1));
    return rows.update();
}

QString groupsSql()
{
    return u"select * from CNT_ASSOGRP where [GROUP] is not null"_s;
}

QString userFieldsSql(const QString& group)
{
    return u"select * from HB_USER where [GRP]='"_s + core::inQuotes(group) + u'\'';
}

std::optional<QStringList> userFieldsOf(jet::Database& data, const QString& group)
{
    const jet::Recordset rows = data.openRecordset(userFieldsSql(group));
    if (!rows.hasRow())
        return {};
    QStringList labels;
    for (int field = 1; field <= kUserFields; ++field)
        labels << rows.textOrEmpty(u"User"_s + QString::number(field));
    return labels;
}

bool storeUserFields(jet::Database& data, const QString& group, const QStringList& labels)
{
    jet::Recordset rows = data.openRecordset(userFieldsSql(group));
    editOrAdd(rows);
    rows.set(u"grp", group);
    for (int field = 1; field <= kUserFields; ++field)
        rows.set(u"User"_s + QString::number(field), labels.value(field - 1));
    return rows.update();
}

QString journalCategoriesSql()
{
    return u"select distinct CATEG1 from OVS_CHOICES where [TYPE]='Journal' order by CATEG1"_s;
}

QString journalSubcategoriesSql()
{
    return u"select distinct CATEG2 from OVS_CHOICES where [TYPE]='Journal' order by CATEG2"_s;
}

JournalWords journalWordsOf(jet::Database& data, Noted what)
{
    const jet::Recordset settings = data.openRecordset(settingsSql());
    return {
        settings.textOrEmpty(journalColumn(what, false)), settings.textOrEmpty(journalColumn(what, true))};
}

bool storeJournalWords(jet::Database& data, Noted what, const JournalWords& words)
{
    // Without a word its column has no value, and the journal has words of its own.
    const auto wordOf = [](const QString& word) { return word.isEmpty() ? QVariant() : QVariant(word); };
    jet::Recordset settings = data.openRecordset(settingsSql());
    editOrAdd(settings);
    settings.set(journalColumn(what, false), wordOf(words.category));
    settings.set(journalColumn(what, true), wordOf(words.subcategory));
    return settings.update();
}

} // namespace letters
