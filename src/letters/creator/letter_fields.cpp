#include "letters/creator/letter_fields.h"

#include "core/vocabularies.h"
#include "jet/database.h"
#include "jet/date_text.h"
#include "letters/creator/letter_lists.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

namespace {

constexpr QStringView kEnding = u"Yours Faithfully";
constexpr QStringView kHistoryHeadings = u"Date         |Type          |Categ            ";

/// The values of a list without blanks, under one that says nothing.
std::function<QStringList()> withBlank(jet::Database& book, const QString& sql)
{
    return [&book, sql] {
        QStringList values = core::firstColumn(book, sql);
        values.removeIf([](const QString& value) { return value.trimmed().isEmpty(); });
        return QStringList{QString()} + values;
    };
}

} // namespace

PhrasePanel::PhrasePanel(QWidget* parent)
    : QWidget(parent)
{
    widgets::FormKit form(this);
    form.group()
        .fixedCombo(u"cmbcaption"_s, tr("Stored te&xt"))
        .hint(tr("Puts a stored text into the letter"))
        .combo(u"DBCop1"_s, tr("&Opening"))
        .combo(u"DBCop2"_s, {})
        .combo(u"DBCop3"_s, {})
        .combo(u"DBCop4"_s, tr("&Further lines"))
        .combo(u"DBCop5"_s, {})
        .combo(u"DBCop6"_s, {})
        .combo(u"DBCl1"_s, tr("C&losing"))
        .combo(u"DBCl2"_s, {})
        .combo(u"DBCend"_s, tr("&Ending"))
        .combo(u"DBCUName"_s, tr("Si&gned by"))
        .caption(u"lbluser"_s, {}, tr("Signature"))
        .button(u"CmdGreeting"_s, tr("Greet the family"), u"family",
            tr("Adds a greeting for husband, wife and children to the end of the text"))
        .stretch();
    for (const QStringView name : {u"DBCop1", u"DBCop2", u"DBCop3", u"DBCop4", u"DBCop5", u"DBCop6"})
        m_openings << child<widgets::FilledCombo>(this, name.toString());
    for (const QStringView name : {u"DBCl1", u"DBCl2"})
        m_closings << child<widgets::FilledCombo>(this, name.toString());
    DBCend = child<widgets::FilledCombo>(this, u"DBCend"_s);
    DBCUName = child<widgets::FilledCombo>(this, u"DBCUName"_s);
    cmbcaption = child<widgets::FilledCombo>(this, u"cmbcaption"_s);
    lbluser = child<QLabel>(this, u"lbluser"_s);
    for (widgets::FilledCombo* combo : m_openings + m_closings + QList{DBCend}) {
        connect(combo, &QComboBox::currentTextChanged, this, [this] {
            if (!m_isShowing)
                Q_EMIT changed();
        });
    }
    connect(DBCUName, &QComboBox::currentTextChanged, this, [this](const QString& name) {
        lbluser->setText(name);
        if (!m_isShowing)
            Q_EMIT changed();
    });
    connect(cmbcaption, &QComboBox::activated, this, [this] { Q_EMIT captionChosen(caption()); });
    connect(child<QPushButton>(this, u"CmdGreeting"_s), &QPushButton::clicked, this,
        &PhrasePanel::greetingWanted);
}

void PhrasePanel::load(jet::Database& book)
{
    cmbcaption->setSource(withBlank(book, stockTextsSql()));
    for (qsizetype line = 0; line < m_openings.size(); ++line)
        m_openings.at(line)->setSource(withBlank(book, line < 3 ? openingsSql() : furtherLinesSql()));
    for (widgets::FilledCombo* combo : std::as_const(m_closings))
        combo->setSource(withBlank(book, closingLinesSql()));
    DBCend->setSource(withBlank(book, endingsSql()));
    DBCUName->setSource(withBlank(book, signersSql()));
    m_signer = book.openRecordset(u"select name from cnt_user").textOrEmpty(u"name");
    clear();
}

void PhrasePanel::fill(LetterParts& parts) const
{
    for (qsizetype line = 0; line < m_openings.size(); ++line)
        parts.openings.at(size_t(line)) = m_openings.at(line)->currentText();
    for (qsizetype line = 0; line < m_closings.size(); ++line)
        parts.closings.at(size_t(line)) = m_closings.at(line)->currentText();
    parts.ending = DBCend->currentText();
    parts.signature = lbluser->text();
}

void PhrasePanel::show(const LetterParts& parts)
{
    m_isShowing = true;
    for (qsizetype line = 0; line < m_openings.size(); ++line)
        m_openings.at(line)->setText(parts.openings.at(size_t(line)));
    for (qsizetype line = 0; line < m_closings.size(); ++line)
        m_closings.at(line)->setText(parts.closings.at(size_t(line)));
    DBCend->setText(parts.ending);
    setSigner(parts.signature);
    m_isShowing = false;
}

void PhrasePanel::clear()
{
    show({.ending = kEnding.toString(), .signature = m_signer});
    cmbcaption->setText({});
}

void PhrasePanel::setSigner(const QString& name)
{
    DBCUName->setText(name);
    lbluser->setText(name);
}

QString PhrasePanel::caption() const
{
    return cmbcaption->currentText();
}

void PhrasePanel::setCaption(const QString& caption)
{
    cmbcaption->setText(caption);
}

LetterDetails::LetterDetails(const LetterForm& form, QWidget* parent)
    : QWidget(parent)
    , m_history(new widgets::HeadingGrid)
{
    m_history->setHeadings(kHistoryHeadings, {u"date"_s, u"mailtype"_s, u"mailcateg"_s});
    m_history->letColumnsGiveWay();
    m_history->setKeyColumn(u"id"_s);
    m_history->setEmptyText(tr("No letters to this person yet"));
    m_history->setMinimumHeight(80);
    widgets::FormKit kit(this);
    kit.group()
        .date(u"Ssdate1"_s, tr("&Date"))
        .combo(u"DBCgrp"_s, tr("&Type"))
        .combo(u"DBCmlcat"_s, tr("&Category"))
        .line(u"txtseno"_s, tr("Serial &number"));
    if (form.hasNote)
        kit.memo(u"note"_s, tr("N&ote"), {}, 2);
    kit.line(u"Folder"_s, tr("Fo&lder"))
        .button(u"CmdFolder"_s, tr("Choose..."), u"folder", tr("Choose the folder for files of letters"))
        .button(u"CmdFiles"_s, tr("Save files"), u"file", tr("Write a file for each recipient there"))
        .button(u"Command2"_s, tr("Database"), u"drive",
            tr("Save the letters as a database of their own, with a CSV file beside it"))
        .group(tr("Letters to this person"))
        .wide(u"FGHistory"_s, tr("Letters to this person; Enter shows one"), m_history);
    Ssdate1 = child<widgets::DateBox>(this, u"Ssdate1"_s);
    DBCgrp = child<widgets::FilledCombo>(this, u"DBCgrp"_s);
    DBCmlcat = child<widgets::FilledCombo>(this, u"DBCmlcat"_s);
    txtseno = child<QLineEdit>(this, u"txtseno"_s);
    Folder = child<QLineEdit>(this, u"Folder"_s);
    m_note = findChild<QPlainTextEdit*>(u"note"_s);
    const auto onClick = [this](const QString& name, auto signal) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, signal);
    };
    onClick(u"CmdFolder"_s, &LetterDetails::folderWanted);
    onClick(u"CmdFiles"_s, &LetterDetails::filesWanted);
    onClick(u"Command2"_s, &LetterDetails::databaseWanted);
    connect(m_history, &widgets::HeadingGrid::chosen, this,
        [this] { Q_EMIT letterChosen(m_history->currentKey()); });
    const auto tell = [this] {
        if (!m_isShowing)
            Q_EMIT changed();
    };
    connect(Ssdate1, &widgets::DateBox::dateChanged, this, tell);
    connect(DBCgrp, &QComboBox::currentTextChanged, this, tell);
    connect(DBCmlcat, &QComboBox::currentTextChanged, this, tell);
    connect(txtseno, &QLineEdit::textChanged, this, tell);
    if (m_note)
        connect(m_note, &QPlainTextEdit::textChanged, this, tell);
}

void LetterDetails::load(jet::Database& book, const QString& datePattern, const QDate& today)
{
    Ssdate1->setFormat(datePattern);
    show({.date = today});
    m_history->showAs(u"date"_s,
        [datePattern](const QVariant& date) { return jet::formatDate(date.toDate(), datePattern); });
    DBCgrp->setSource(withBlank(book, letterTypesSql()));
    DBCmlcat->setSource(withBlank(book, letterCategoriesSql()));
    Folder->setText(kLetterFolder.toString());
}

LetterDetails::Values LetterDetails::values() const
{
    return {Ssdate1->date().value_or(QDate()), DBCgrp->currentText(), DBCmlcat->currentText(),
        txtseno->text(), m_note ? m_note->toPlainText() : QString()};
}

void LetterDetails::show(const Values& values)
{
    const QScopedValueRollback showing(m_isShowing, true);
    Ssdate1->setDate(values.date.isValid() ? std::optional(values.date) : std::nullopt);
    DBCgrp->setText(values.type);
    DBCmlcat->setText(values.category);
    txtseno->setText(values.serialNumber);
    if (m_note)
        m_note->setPlainText(values.note);
}

bool LetterDetails::hasBadDate() const
{
    if (!Ssdate1->holdsBadText())
        return false;
    Ssdate1->askToMend();
    return true;
}

QString LetterDetails::folder() const
{
    return Folder->text().trimmed();
}

void LetterDetails::setFolder(const QString& folder)
{
    Folder->setText(folder);
}

void LetterDetails::showHistory(jet::Database& book, const QString& person)
{
    if (person.trimmed().isEmpty())
        m_history->clearRows();
    else
        m_history->fill(book.openRecordset(lettersToSql(person)));
    m_history->setCurrentRow(-1);
}

} // namespace letters
