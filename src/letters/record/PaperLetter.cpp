#include "letters/record/PaperLetter.h"

#include "core/contact_lookups.h"
#include "core/date_patterns.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/stored_file.h"
#include "core/vocabularies.h"
#include "letters/record/contact_choice.h"
#include "letters/record/paper_pages.h"
#include "letters/record/record_statements.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

namespace {

constexpr QStringView kFolder = u"C:\\OVUserFiles\\Letters";

constexpr PaperKind kScanned{QT_TRANSLATE_NOOP("letters", "Scan Letters"), u"Scan", true,
    u"Pictures and PDF files|*.png;*.jpg;*.jpeg;*.bmp;*.gif;*.webp;*.tif;*.tiff;*.pdf"};
constexpr PaperKind kFiled{QT_TRANSLATE_NOOP("letters", "Save Letters"), u"File", false,
    u"Letters|*.doc;*.docx;*.odt;*.rtf;*.txt;*.pdf;*.png;*.jpg;*.jpeg;*.tif;*.tiff|*.*|*.*"};

constexpr int kResolutions[] = {100, 150, 200, 300, 600};
constexpr int kUsualResolution = 2; ///< place among them

/// Letters of one person lie together; the id tells two of one name apart.
QString folderOf(qint64 person, const QString& name)
{
    const QString safe = platform::Drive::safeFileName(name.simplified());
    return kFolder.toString() + u'\\' + (person == 0 ? safe : u"%1 (%2)"_s.arg(safe).arg(person));
}

} // namespace

frmScan::frmScan(core::Context& context, QWidget* parent)
    : PaperLetter(context, kScanned, parent)
{
}

frmgmail1::frmgmail1(core::Context& context, QWidget* parent)
    : PaperLetter(context, kFiled, parent)
{
}

PaperLetter::PaperLetter(core::Context& context, const PaperKind& kind, QWidget* parent)
    : Screen(context, parent)
    , m_kind(kind)
    , m_person(new ContactChoice(context.data))
    , m_pages(new PaperPages)
{
    setWindowTitle(QCoreApplication::translate("letters", kind.title));
    layOut();
    fillVocabularies();
    connect(m_pages, &PaperPages::refused, this, [this](const QString& why) { warn(why); });
}

PaperLetter::~PaperLetter()
{
    if (m_isScanning)
        context().services.scanner.cancel();
}

void PaperLetter::layOut()
{
    m_pages->setMany(m_kind.scans);
    auto* letter = new QWidget;
    widgets::FormKit form(
        letter, [this](QStringView column) { return context().schema.textSize(u"cnt_letters", column); });
    form.group(tr("Letter"))
        .widget(u"txtperson"_s, tr("&Person"), m_person, u"person"_s)
        .hint(tr("Whom the letter is from or to; contacts are offered while you type"))
        .date(u"Ssdate1"_s, tr("&Date"), u"Date"_s)
        .combo(u"CmbType1"_s, tr("Di&rection"), u"type1"_s)
        .hint(tr("Sent or received"))
        .combo(u"DBCgrp"_s, tr("&Type"), u"Mailtype"_s)
        .combo(u"DBCmlcat"_s, tr("Cate&gory"), u"mailcateg"_s)
        .line(u"txtseno"_s, tr("Serial &no."), u"MailID"_s)
        .memo(u"txtnote"_s, tr("N&ote"), u"note"_s, 4);
    auto* source = new QWidget;
    if (m_kind.scans)
        layOutScanner(source);
    auto* choose = new QPushButton(m_kind.scans ? tr("Add &files...") : tr("Choose a &file..."));
    choose->setObjectName(u"CmdFile"_s);
    choose->setAutoDefault(false);
    widgets::setIcon(choose, u"folder");
    connect(choose, &QPushButton::clicked, this, &PaperLetter::chooseFiles);
    auto* right = new QVBoxLayout;
    right->addWidget(source);
    right->addWidget(choose, 0, Qt::AlignLeft);
    right->addWidget(m_pages, 1);
    auto* columns = new QHBoxLayout;
    columns->addWidget(letter, 2);
    columns->addLayout(right, 3);
    auto* buttons = new QWidget;
    widgets::FormKit(buttons)
        .buttonRow()
        .button(u"CmdNew"_s, tr("Ne&w"), u"add", tr("Blank the form for another letter"))
        .stretch()
        .button(u"CmdSave"_s, tr("&Save"), u"save", tr("Keep the letter in the record (Ctrl+S)"))
        .button(u"CmdExit"_s, tr("&Close"), u"exit", tr("Close the screen (Esc)"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addWidget(buttons);
    m_fields = widgets::FieldSet(letter);
    connect(child<QPushButton>(this, u"CmdNew"_s), &QPushButton::clicked, this, [this] {
        if (mayDiscard())
            blank();
    });
    connect(child<QPushButton>(this, u"CmdSave"_s), &QPushButton::clicked, this, &PaperLetter::save);
    connect(child<QPushButton>(this, u"CmdExit"_s), &QPushButton::clicked, this,
        [this] { Q_EMIT closeRequested(); });
    child<QPushButton>(this, u"CmdSave"_s)->setShortcut(QKeySequence::Save);
    setFocusProxy(m_person);
}

void PaperLetter::layOutScanner(QWidget* page)
{
    m_scanners = new QComboBox;
    m_resolution = new QComboBox;
    m_color = new QCheckBox(tr("Co&lour"));
    m_scan = new QPushButton(tr("Sc&an a page"));
    m_scanState = new QLabel;
    m_scanState->setTextFormat(Qt::PlainText);
    m_scanState->setWordWrap(true);
    m_scanState->setObjectName(u"lblScanner"_s);
    for (const int dots : kResolutions)
        m_resolution->addItem(tr("%1 dpi").arg(dots), dots);
    m_resolution->setCurrentIndex(kUsualResolution);
    m_scan->setAutoDefault(false);
    widgets::setIcon(m_scan, u"picture");
    auto* again = new QPushButton(tr("Loo&k for scanners"));
    again->setAutoDefault(false);
    widgets::setIcon(again, u"restore");
    widgets::FormKit form(page);
    form.group()
        .widget(u"CmbScanner"_s, tr("Scann&er"), m_scanners)
        .beside()
        .widget(u"CmdFindScanners"_s, {}, again)
        .widget(u"CmbResolution"_s, tr("Resol&ution"), m_resolution)
        .beside()
        .widget(u"ChkColor"_s, {}, m_color)
        .beside()
        .widget(u"CmdScan"_s, {}, m_scan)
        .wide(u"lblScanner"_s, tr("What the scanner does"), m_scanState);
    m_scan->setAccessibleName(tr("Scan a page"));
    again->setAccessibleName(tr("Look for scanners"));
    connect(m_scan, &QPushButton::clicked, this, &PaperLetter::scan);
    connect(again, &QPushButton::clicked, this, &PaperLetter::findScanners);
}

void PaperLetter::fillVocabularies()
{
    m_fields.control<widgets::FilledCombo>(u"CmbType1"_s)->setValues({u"Received"_s, u"Sent"_s});
    m_fields.control<widgets::FilledCombo>(u"DBCgrp"_s)->setSource([this] {
        return core::firstColumn(
            context().data, u"select item from GF_MAST where itmtyp='Ltyp' and delst='N'"_s);
    });
    m_fields.control<widgets::FilledCombo>(u"DBCmlcat"_s)->setSource([this] {
        return core::firstColumn(context().data, mailCategoriesSql());
    });
}

void PaperLetter::load()
{
    setFrameTitle(windowTitle());
    m_fields.control<widgets::DateBox>(u"Ssdate1"_s)->setFormat(core::datePattern(shared().NationalMode));
    blank();
    if (m_kind.scans) {
        m_scan->setEnabled(false);
        // Looking for devices takes seconds; it waits for the person where scanners are rare.
        m_scanState->setText(context().services.scanner.isAvailable()
                ? tr("Look for scanners to scan a page, or add pictures that are there already.")
                : tr("No scanner software was found on this computer. Pictures and PDF files can be added."));
        child<QPushButton>(this, u"CmdFindScanners"_s)->setEnabled(context().services.scanner.isAvailable());
    }
}

void PaperLetter::blank()
{
    m_fields.clear();
    m_person->setContact(0, {});
    m_fields.control<widgets::DateBox>(u"Ssdate1"_s)->setDate(context().services.clock.today());
    m_fields.setText(u"CmbType1"_s, u"Received"_s);
    m_pages->clear();
    m_scans.reset();
    m_fields.keepAsLoaded();
}

bool PaperLetter::isTouched() const
{
    return m_fields.isTouched() || !m_pages->files().isEmpty();
}

bool PaperLetter::showContact(qint64 id)
{
    const jet::Recordset contact = context().data.openRecordset(core::contactNameSql(id));
    if (!contact.hasRow() || !mayDiscard())
        return false;
    blank();
    m_person->setContact(id, contact.textOrEmpty(u"Name"));
    m_fields.keepAsLoaded();
    return true;
}

void PaperLetter::findScanners()
{
    m_scanState->setText(tr("Looking for scanners..."));
    const QPointer<PaperLetter> screen(this);
    context().services.scanner.findDevices([screen](const QList<platform::ScannerDevice>& devices) {
        if (!screen)
            return;
        screen->m_devices = devices;
        screen->m_scanners->clear();
        for (const platform::ScannerDevice& device : devices)
            screen->m_scanners->addItem(device.title);
        screen->m_scan->setEnabled(!devices.isEmpty());
        screen->m_scanState->setText(devices.isEmpty()
                ? PaperLetter::tr("No scanner was found. Is it switched on?")
                : PaperLetter::tr("Put a page on the scanner, then scan it."));
    });
}

void PaperLetter::scan()
{
    if (m_isScanning) {
        context().services.scanner.cancel();
        return scanned({}, tr("The scan was stopped."));
    }
    const int device = m_scanners->currentIndex();
    if (device < 0 || device >= m_devices.size())
        return;
    if (!m_scans)
        m_scans = std::make_unique<QTemporaryDir>();
    if (!m_scans->isValid())
        return warn(tr("There is no room for the page: %1").arg(m_scans->errorString()));
    const platform::ScanOrder order{m_devices[device].name, m_resolution->currentData().toInt(),
        m_color->isChecked(), m_scans->filePath(u"Page %1.png"_s.arg(++m_scanCount))};
    m_isScanning = true;
    // A search would end the scan.
    child<QPushButton>(this, u"CmdFindScanners"_s)->setEnabled(false);
    m_scan->setText(tr("Stop the sc&an"));
    m_scanState->setText(tr("The page is being scanned..."));
    const QPointer<PaperLetter> screen(this);
    context().services.scanner.scan(order, [screen, file = order.file](const QString& cause) {
        if (screen)
            screen->scanned(file, cause);
    });
}

void PaperLetter::scanned(const QString& file, const QString& cause)
{
    m_isScanning = false;
    child<QPushButton>(this, u"CmdFindScanners"_s)->setEnabled(true);
    m_scan->setText(tr("Sc&an a page"));
    if (!cause.isEmpty())
        return m_scanState->setText(cause);
    m_scanState->setText(tr("The page was scanned. Put the next one on, or save the letter."));
    addFile(file);
}

void PaperLetter::chooseFiles()
{
    platform::MessageBoxes& boxes = context().services.boxes;
    if (m_kind.scans) {
        for (const QString& file :
            boxes.openFiles(windowTitle(), m_kind.filter.toString()).value_or(QStringList()))
            addFile(file);
    } else if (const auto file = boxes.openFile(windowTitle(), m_kind.filter.toString())) {
        addFile(*file);
    }
}

void PaperLetter::addFile(const QString& file)
{
    if (const QString why = m_pages->add(file); !why.isEmpty())
        warn(why);
}

void PaperLetter::save()
{
    if (m_person->text().trimmed().isEmpty()) {
        warn(tr("Please choose the person whom the letter is from or to"));
        return m_person->setFocus();
    }
    if (widgets::DateBox* bad = m_fields.firstBadDate())
        return bad->askToMend();
    if (m_pages->files().isEmpty())
        return warn(m_kind.scans ? tr("Please scan a page or add a file")
                                 : tr("Please choose the file of the letter"));
    const QStringList pages = m_pages->files();
    if (pages.size() > 1 && !m_scans)
        m_scans = std::make_unique<QTemporaryDir>();
    const QString file = pages.size() > 1 ? m_pages->joined(m_scans->path()) : pages.first();
    if (file.isEmpty())
        return warn(tr("The pages could not be joined to one file. Nothing was saved."));
    const bool isOurs = m_scans && file.startsWith(m_scans->path());
    const QString name = m_person->text().trimmed();
    if (!store(m_person->contactId(), file, isOurs))
        return;
    playSound(core::sounds::Save);
    tellSaved(tr("the letter of %1").arg(name));
    blank();
    context().screens.tellBookChanged(this);
}

bool PaperLetter::store(qint64 person, const QString& file, bool isOurs)
{
    const QString name = m_person->text().trimmed();
    const QString folder = folderOf(person, name);
    // What was scanned lies nowhere else and has to be moved to where it stays.
    const QString mode = isOurs ? u"Move"_s : shared().PhotoStoreMode;
    core::StoredFile kept(context().services.drive, folder, file, mode);
    const bool isInFolder = kept.path().startsWith(folder);
    if (isOurs && !isInFolder) {
        warn(tr("The letter could not be put into the folder %1. Nothing was saved.").arg(folder));
        return false;
    }
    const jet::Recordset contact
        = person == 0 ? jet::Recordset() : context().data.openRecordset(core::contactByIdSql(person));
    const QDate date = m_fields.control<widgets::DateBox>(u"Ssdate1"_s)->date().value_or(QDate());
    const bool isStored = [&] {
        jet::Step step(context().data, tr("a letter of %1").arg(name));
        step.follow(kept.follower());
        jet::Recordset letters
            = context().data.openRecordset(u"select * from CNT_letters order by id desc"_s);
        letters.addNew();
        for (const widgets::Control& field : m_fields.controls()) {
            if (const QString text = m_fields.text(field.name); field.column != u"Date" && !text.isEmpty())
                letters.set(field.column, text);
        }
        letters.set(u"person", name);
        letters.set(u"Date", date.isValid() ? QVariant(date) : QVariant());
        letters.set(u"Year", date.isValid() ? QVariant(QString::number(date.year())) : QVariant());
        letters.set(u"type2", m_kind.secondType.toString());
        letters.set(u"path", kept.path());
        if (contact.hasRow()) {
            letters.set(u"PerId", person);
            static constexpr QStringView kFromContact[][2]
                = {{u"Add1", u"h_add1"}, {u"Add2", u"h_add2"}, {u"city", u"h_city"}, {u"State", u"h_state"},
                    {u"Country", u"h_country"}, {u"Pin", u"h_pin"}, {u"category1", u"category1"}};
            for (const auto& [column, from] : kFromContact)
                letters.set(column, contact.textOrEmpty(from));
        }
        return letters.update();
    }();
    if (!isStored) {
        core::tellFailedSave(context());
        return false;
    }
    kept.keep();
    if (!isInFolder && mode != u"Link")
        warn(tr("The file could not be put into the folder %1. The record points to where it is.")
                 .arg(folder));
    return true;
}

void PaperLetter::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeRequested();
    else
        Screen::keyPressEvent(event);
}

} // namespace letters
