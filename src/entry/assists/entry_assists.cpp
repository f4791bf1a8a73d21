#include "entry/assists/entry_assists.h"

#include "core/handover/word_picker.h"
#include "core/screens.h"
#include "core/vocabularies.h"
#include "entry/assists/address_lookup.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/heading_grid.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

constexpr QStringView kPhoneFields[] = {u"txtstd", u"txtph1", u"txtph2", u"txtph3", u"txtMobile",
    u"txtspmobile", u"txtwstd", u"txtwph1", u"txtwph2", u"txtwph3", u"txtwxtn", u"txtfax", u"txtbstd",
    u"txtbph1", u"txtbph2", u"txtbph3", u"txtbxtn"};
constexpr QStringView kAddressFields[]
    = {u"txtadd1", u"txtadd2", u"txtbadd1", u"txtbadd2", u"txtwadd1", u"txtwadd2"};
constexpr QStringView kCityFields[] = {u"dtcmbcity", u"dtcmbcity1", u"dtcmbbcity", u"dtcmbwcity"};

bool isOneOf(const QString& name, std::span<const QStringView> names)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// The control that the focus belongs to: a combo for the line inside it.
QWidget* controlOf(QObject* watched)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    auto* combo = widget ? qobject_cast<QComboBox*>(widget->parentWidget()) : nullptr;
    return combo ? combo : widget;
}

} // namespace

EntryAssists::EntryAssists(QWidget* form, QTabWidget* pages, core::Context& context)
    : QObject(form)
    , m_form(form)
    , m_pages(pages)
    , m_context(context)
{
    const auto watch = [this](std::span<const QStringView> names) {
        for (const QStringView name : names) {
            auto* control = m_form->findChild<QWidget*>(name.toString());
            if (!control)
                continue;
            control->installEventFilter(this);
            if (auto* combo = qobject_cast<QComboBox*>(control); combo && combo->lineEdit())
                combo->lineEdit()->installEventFilter(this);
        }
    };
    static constexpr QStringView others[] = {u"dtcmbfname", u"dtcspouse", u"txtMemo"};
    watch(kPhoneFields);
    watch(kAddressFields);
    watch(kCityFields);
    watch(others);

    const auto onText = [this](QStringView control, auto handler) {
        if (auto* combo = m_form->findChild<QComboBox*>(control.toString()))
            connect(combo, &QComboBox::currentTextChanged, this, handler);
        else if (auto* line = m_form->findChild<QLineEdit*>(control.toString()))
            connect(line, &QLineEdit::textChanged, this, handler);
    };
    onText(u"txtcmpnyPrefix", [this] { composeCompany(); });
    onText(u"txtcmpnySuffix", [this] { composeCompany(); });
    if (auto* company = m_form->findChild<QLineEdit*>(u"txtcmpny"_s))
        connect(company, &QLineEdit::textEdited, this, &EntryAssists::companyTyped);
    auto* sub = m_form->findChild<widgets::FilledCombo*>(u"DtcmbSubCate"_s);
    onText(u"DtcmbCate", [sub] {
        if (sub)
            sub->refill();
    });
    auto* spouse = m_form->findChild<widgets::FilledCombo*>(u"dtcspouse"_s);
    if (spouse)
        spouse->setSource([this] {
            return core::firstColumn(
                m_context.info, spouseNamesSql(text(u"CmbSex"), m_context.shared.NationalMode));
        });
    onText(u"CmbSex", [spouse] {
        if (spouse)
            spouse->refill();
    });
    // The home city stands on two pages.
    onText(u"dtcmbcity", [this] { setText(u"dtcmbcity1", text(u"dtcmbcity")); });
    onText(u"dtcmbcity1", [this] { setText(u"dtcmbcity", text(u"dtcmbcity1")); });
    if (auto* words = m_form->findChild<widgets::HeadingGrid*>(u"FG1"_s)) {
        // A click takes a word; the second one of a double click takes no other.
        connect(words, &widgets::HeadingGrid::chosen, this, [this, words](int row) {
            if (!m_sinceClick.isValid() || m_sinceClick.hasExpired(QApplication::doubleClickInterval()))
                completeWord(words->textAt(row, u"word"_s));
        });
        connect(words, &QAbstractItemView::clicked, this, [this, words](const QModelIndex& index) {
            completeWord(words->textAt(index.row(), u"word"_s));
            m_sinceClick.start();
        });
    }
}

const std::array<EntryAssists::AddressSet, 3>& EntryAssists::addressSets()
{
    static constexpr std::array<AddressSet, 3> sets{{
        {u"", u"dtcmbcity", u"dtcmbstate", u"dtcmbcountry", u"dtcmbpin", u"txtstd"},
        {u"Work1", u"dtcmbbcity", u"dtcmbbstate", u"dtcmbbcountry", u"dtcmbbpin", u"txtbstd"},
        {u"Work2", u"dtcmbwcity", u"dtcmbwstate", u"dtcmbwcountry", u"dtcmbwpin", u"txtwstd"},
    }};
    return sets;
}

const EntryAssists::AddressSet& EntryAssists::currentSet() const
{
    const QString page = m_pages->currentWidget() ? m_pages->currentWidget()->objectName() : QString();
    for (const AddressSet& set : addressSets()) {
        if (page == set.page)
            return set;
    }
    return addressSets()[0];
}

const EntryAssists::AddressSet* EntryAssists::setOfCity(const QString& cityControl) const
{
    if (cityControl == u"dtcmbcity1")
        return &addressSets()[0];
    for (const AddressSet& set : addressSets()) {
        if (cityControl == set.city)
            return &set;
    }
    return nullptr;
}

QString EntryAssists::text(QStringView control) const
{
    const auto* widget = m_form->findChild<QWidget*>(control.toString());
    return widget ? widgets::textOf(widget) : QString();
}

void EntryAssists::setText(QStringView control, const QString& value)
{
    auto* widget = m_form->findChild<QWidget*>(control.toString());
    if (widget && widgets::textOf(widget) != value)
        widgets::setTextOf(widget, value);
}

// ---- focus

bool EntryAssists::eventFilter(QObject* watched, QEvent* event)
{
    QWidget* control = controlOf(watched);
    // The list that drops down under a field borrows its focus; the person is still in the field.
    const bool borrowed = (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        && static_cast<QFocusEvent*>(event)->reason() == Qt::PopupFocusReason;
    if (borrowed)
        return false;
    switch (event->type()) {
    case QEvent::FocusIn: focusEntered(control); break;
    case QEvent::FocusOut: focusLeft(control); break;
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (isOneOf(control->objectName(), kAddressFields) || control->objectName() == u"txtMemo")
            return autotextKey(control, key->key(), key->text());
        break;
    }
    default: break;
    }
    return false;
}

void EntryAssists::focusEntered(QWidget* field)
{
    m_textAtEntry = widgets::textOf(field);
    if (isOneOf(field->objectName(), kPhoneFields))
        m_phoneField = field;
    if (isOneOf(field->objectName(), kAddressFields) || field->objectName() == u"txtMemo") {
        m_wordField = field;
        m_typedWord.clear();
    }
}

void EntryAssists::focusLeft(QWidget* field)
{
    // A field that was only passed through has nothing to look up; codes typed by hand stay.
    const QString now = widgets::textOf(field);
    if (m_quiet || now == m_textAtEntry)
        return;
    m_textAtEntry = now;
    if (field->objectName() == u"dtcmbfname" && !now.trimmed().isEmpty())
        guessSex();
    if (const AddressSet* set = setOfCity(field->objectName()))
        lookUpAddress(*set);
}

// ---- names and company

void EntryAssists::guessSex()
{
    const auto rows = m_context.info.openRecordset(genderSql(text(u"dtcmbfname")));
    if (const auto gender = rows.text(u"Gender"))
        setText(u"CmbSex", *gender);
}

void EntryAssists::composeCompany()
{
    if (!m_quiet) {
        setText(u"txtcmpny", text(u"txtcmpnyPrefix") + u' ' + text(u"txtcmpnySuffix"));
        companyTyped();
    }
}

void EntryAssists::companyTyped()
{
    if (text(u"dtcmbfname").trimmed().isEmpty() && text(u"dtcmblname").trimmed().isEmpty()
        && !text(u"txtcmpny").trimmed().isEmpty())
        setText(u"cmbnview", u"Company"_s);
}

// ---- cities

void EntryAssists::takePick(AssistPanel::Tab tab, const QString& value, const QString& country)
{
    switch (tab) {
    case AssistPanel::Tab::Company:
        setText(u"txtcmpnyPrefix", value);
        setText(u"txtcmpny", value);
        companyTyped();
        return;
    case AssistPanel::Tab::Last: setText(u"dtcmblname", value); return;
    case AssistPanel::Tab::First:
        setText(u"dtcmbfname", value);
        guessSex();
        return;
    case AssistPanel::Tab::City: break;
    }
    const AddressSet& set = currentSet();
    setText(set.city, value);
    if (!country.isEmpty() && country != u"All")
        setText(set.country, country);
    lookUpAddress(set);
    setText(u"dtcmbregion", regionOfCity(m_context.info, value, country));
    if (country == u"United States")
        setText(u"LblStateFull", fullStateOfCity(m_context.info, value));
}

void EntryAssists::takeScope(const QString& country)
{
    for (const AddressSet& set : addressSets()) {
        setText(set.country, country);
        setText(set.state, {});
    }
}

void EntryAssists::lookUpAddress(const AddressSet& set)
{
    const auto facts
        = lookUpCity(m_context.info, text(set.city), text(set.country), m_context.shared.NationalMode);
    if (!facts) {
        for (const QStringView cleared : {set.state, set.pin, set.std})
            setText(cleared, {});
        return;
    }
    const auto show = [this](QStringView control, const std::optional<QString>& value) {
        if (value)
            setText(control, *value);
    };
    show(set.state, facts->state);
    show(u"dtcmbregion", facts->region);
    show(set.std, facts->std);
    show(set.pin, facts->pin);
    if (!facts->inHomeCountry)
        return show(set.country, facts->country);
    for (const AddressSet& each : addressSets())
        show(each.country, facts->country);
}

// ---- key pad and autotext

void EntryAssists::pressKey(const QString& caption)
{
    if (m_phoneField)
        widgets::setTextOf(m_phoneField, widgets::textOf(m_phoneField) + caption);
}

bool EntryAssists::autotextKey(QWidget* field, int key, const QString& typed)
{
    const bool isNote = field->objectName() == u"txtMemo";
    if (key == Qt::Key_Period && !m_typedWord.word().isEmpty() && !isNote) {
        auto* picker = m_context.screens.load<core::WordPicker>(u"FrmColony");
        // Where no stored word begins so, a point is a point, as in "M.G. Road".
        const QString city = text(u"dtcmbcity1");
        if (!picker || !picker->hasWords(city, m_typedWord.forLookUp()))
            return false;
        const auto pick = picker->pickWord(city, m_typedWord.forLookUp());
        if (pick)
            completeWord(*pick);
        return true;
    }
    for (const QChar letter : typed)
        m_typedWord.type(letter);
    if (isNote && !typed.isEmpty())
        lookUpCommonWords();
    return false;
}

void EntryAssists::lookUpCommonWords()
{
    auto* words = m_form->findChild<widgets::HeadingGrid*>(u"FG1"_s);
    if (!words)
        return;
    words->fill(m_context.data.openRecordset(commonWordsSql(m_typedWord.word())));
    words->setVisible(words->rowCount() > 0);
}

void EntryAssists::completeWord(const QString& word)
{
    if (!m_wordField)
        return;
    if (auto* note = qobject_cast<QPlainTextEdit*>(m_wordField)) {
        QTextCursor cursor = note->textCursor();
        // The word as it stands there: a point behind it and letters taken back are not part of the typed
        // word.
        const QString before
            = m_typedWord.word().isEmpty() ? QString() : cursor.block().text().left(cursor.positionInBlock());
        const auto length = before.size() - (before.lastIndexOf(u' ') + 1);
        cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, int(length));
        cursor.insertText(word);
        note->setTextCursor(cursor);
    } else if (auto* line = qobject_cast<QLineEdit*>(m_wordField)) {
        const int cursor = line->cursorPosition();
        line->setText(withWordReplaced(line->text(), cursor, m_typedWord.word(), word));
    }
    m_typedWord.clear();
    m_wordField->setFocus();
}

} // namespace entry
