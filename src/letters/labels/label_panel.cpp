#include "letters/labels/label_panel.h"

#include "core/date_patterns.h"
#include "jet/date_text.h"
#include "letters/labels/own_sheets.h"
#include "letters/labels/sheet_picture.h"
#include "letters/labels/SheetDialog.h"
#include "letters/lists/people_reports.h"
#include "output/preview/FrmReportViewer.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "widgets/fields.h"
#include "widgets/theme.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include <utility>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

using output::AddressSet;
using output::LabelSheet;
using widgets::child;

constexpr int kAddresses = 3;
constexpr int kTypes = 5;
constexpr int kOwnRow = kTypes; // of the options
constexpr int kNameList = (kTypes + 1) * kAddresses; // ids behind those of the labels
constexpr int kAddressList = kNameList + 1;
constexpr int kMostCopies = 100;

/// A row a type, the last one for a sheet of the person's own.
constexpr QStringView kOptions[kTypes + 1][kAddresses] = {
    {u"Option1", u"Option2", u"Option3"},
    {u"OptHome1", u"OptWork11", u"OptWork21"},
    {u"OptHome2", u"OptWork12", u"OptWork22"},
    {u"OptHome3", u"OptWork13", u"OptWork23"},
    {u"OptHome4", u"OptWork14", u"OptWork24"},
    {u"OptOwnHome", u"OptOwnWork1", u"OptOwnWork2"},
};

template <class T> T* named(T* control, const QString& name, const QString& toolTip = {})
{
    control->setObjectName(name);
    control->setToolTip(toolTip);
    return control;
}

QPushButton* buttonOf(const QString& name, const QString& text, QStringView icon, const QString& toolTip)
{
    auto* button = named(new QPushButton(text), name, toolTip);
    button->setAutoDefault(false);
    widgets::setIcon(button, icon);
    return button;
}

} // namespace

LabelPanel::LabelPanel(core::Context& context, For who, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_types(new QButtonGroup(this))
    , cmbOwnSheet(named(new QComboBox, u"cmbOwnSheet"_s))
    , m_picture(named(new SheetPicture, u"SheetPicture"_s))
    , spnFirst(named(
          new QSpinBox, u"spnFirst"_s, tr("Labels before it are used up; a click on the sheet says it too")))
    , spnCopies(named(new QSpinBox, u"spnCopies"_s))
    , chkHousehold(named(new QCheckBox(tr("One label a &household")), u"chkHousehold"_s,
          tr("People of one address get one label with all their names")))
    , chkFrame(named(new QCheckBox(tr("A &frame around each label")), u"chkFrame"_s))
    , lblSheet(named(new QLabel, u"lblSheet"_s))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(layOutTypes(who), 1);
    layout->addWidget(layOutSheet(who));
    m_types->button(0)->setChecked(true);
    setFocusProxy(m_types->button(0));
    connect(m_types, &QButtonGroup::idToggled, this, [this](int, bool on) {
        if (on)
            follow();
    });
    connect(cmbOwnSheet, &QComboBox::currentIndexChanged, this, &LabelPanel::follow);
    connect(cmbOwnSheet, &QComboBox::activated, this, [this] {
        const int id = m_types->checkedId();
        if (id < kOwnRow * kAddresses)
            m_types->button(kOwnRow * kAddresses + id % kAddresses)->click();
    });
    connect(m_picture, &SheetPicture::firstLabelChosen, this,
        [this](int label) { spnFirst->setValue(label + 1); });
    connect(
        spnFirst, &QSpinBox::valueChanged, this, [this](int label) { m_picture->setFirstLabel(label - 1); });
    readOwn();
}

QWidget* LabelPanel::layOutTypes(For who)
{
    auto* box = new QGroupBox(tr("Labels"));
    auto* grid = new QGridLayout(box);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(8);
    const QString addresses[] = {tr("Home Address"), tr("Work1 Address"), tr("Work2 Address")};
    const QStringList mnemonics{tr("H&ome"), tr("Work &1"), tr("Work &2")};
    for (int column = 0; column < kAddresses; ++column)
        grid->addWidget(new QLabel(addresses[column]), 0, column + 1);
    for (int row = 0; row <= kTypes; ++row) {
        const QString type = row < kTypes ? u"Type%1"_s.arg(row + 1) : tr("Own sheet");
        auto* label = new QLabel(type);
        if (row < kTypes) {
            label->setText(type + u"   "_s + output::builtinSheets()[size_t(row)].name);
            label->setWordWrap(true);
        }
        grid->addWidget(label, row + 1, 0);
        for (int column = 0; column < kAddresses; ++column) {
            auto* option = named(
                new QRadioButton(row == 0 ? mnemonics[column] : QString(mnemonics[column]).remove(u'&')),
                kOptions[row][column].toString());
            option->setAccessibleName(type + u", "_s + addresses[column]);
            m_types->addButton(option, row * kAddresses + column);
            grid->addWidget(option, row + 1, column + 1);
        }
    }
    grid->addWidget(layOutOwn(), kTypes + 2, 0, 1, kAddresses + 1);
    if (who == For::List) {
        auto* lists = new QHBoxLayout;
        lists->setSpacing(14);
        lists->addWidget(new QLabel(tr("Or a list:")));
        int id = kNameList;
        for (auto* option : {named(new QRadioButton(tr(" &Name List")), u"Option4"_s, tr("The names alone")),
                 named(new QRadioButton(tr("&Address List")), u"Option5"_s,
                     tr("Name, company and home address"))}) {
            m_types->addButton(option, id++);
            lists->addWidget(option);
        }
        lists->addStretch(1);
        grid->addLayout(lists, kTypes + 3, 0, 1, kAddresses + 1);
    }
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(kTypes + 4, 1);
    return box;
}

QWidget* LabelPanel::layOutOwn()
{
    auto* own = new QWidget;
    auto* row = new QHBoxLayout(own);
    row->setContentsMargins(0, 0, 0, 0);
    cmbOwnSheet->setAccessibleName(tr("Own sheet"));
    cmbOwnSheet->setPlaceholderText(tr("No sheets of your own yet"));
    row->addWidget(cmbOwnSheet, 1);
    auto* add = buttonOf(u"cmdNewSheet"_s, tr("Ne&w..."), u"add", tr("Measure a sheet of your own"));
    m_edit = buttonOf(u"cmdEditSheet"_s, tr("&Edit..."), u"edit", tr("Change the measures of the sheet"));
    m_delete = buttonOf(u"cmdDeleteSheet"_s, tr("De&lete"), u"delete", tr("Forget the sheet"));
    for (QPushButton* button : {add, m_edit, m_delete})
        row->addWidget(button);
    connect(add, &QPushButton::clicked, this, [this] { editOwn(true); });
    connect(m_edit, &QPushButton::clicked, this, [this] { editOwn(false); });
    connect(m_delete, &QPushButton::clicked, this, &LabelPanel::deleteOwn);
    return own;
}

QWidget* LabelPanel::layOutSheet(For who)
{
    auto* box = new QGroupBox(tr("Sheet"));
    auto* grid = new QGridLayout(box);
    m_picture->setAccessibleName(tr("The sheet; the arrow keys move the label to begin with"));
    m_picture->setMinimumSize(150, 190);
    grid->addWidget(m_picture, 0, 0, 1, 2);
    lblSheet->setWordWrap(true);
    lblSheet->setTextFormat(Qt::PlainText);
    lblSheet->setMinimumHeight(2 * fontMetrics().lineSpacing());
    lblSheet->setMaximumWidth(220);
    grid->addWidget(lblSheet, 1, 0, 1, 2);
    const auto add = [grid](int row, const QString& text, QSpinBox* spin) {
        auto* label = new QLabel(text);
        label->setBuddy(spin);
        child<QLineEdit>(spin, u"qt_spinbox_lineedit"_s)->setAccessibleName(QString(text).remove(u'&'));
        grid->addWidget(label, row, 0);
        grid->addWidget(spin, row, 1);
    };
    spnFirst->setMinimum(1);
    spnCopies->setRange(1, kMostCopies);
    add(2, tr("Begin w&ith label"), spnFirst);
    chkFrame->setChecked(true);
    if (who == For::List) {
        add(3, tr("&Copies of each"), spnCopies);
        grid->addWidget(chkHousehold, 4, 0, 1, 2);
    } else {
        spnCopies->setParent(box);
        chkHousehold->setParent(box);
        spnCopies->hide();
        chkHousehold->hide();
    }
    grid->addWidget(chkFrame, 5, 0, 1, 2);
    m_test = buttonOf(u"cmdTestPage"_s, tr("&Test page"), u"report",
        tr("A page with crosses at the corners, to lay over a sheet"));
    auto* preview
        = buttonOf(u"cmdPreview"_s, tr("&Preview"), u"printer", tr("Show the pages, to be printed or saved"));
    preview->setDefault(true);
    grid->addWidget(m_test, 6, 0);
    grid->addWidget(preview, 6, 1);
    grid->setRowStretch(0, 1);
    connect(m_test, &QPushButton::clicked, this, &LabelPanel::testWanted);
    connect(preview, &QPushButton::clicked, this, &LabelPanel::previewWanted);
    return box;
}

// Another panel may have stored or deleted a sheet meanwhile.
void LabelPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    readOwn(cmbOwnSheet->currentText());
}

void LabelPanel::readOwn(const QString& current)
{
    m_own = readOwnSheets(m_context.services.drive);
    {
        const QSignalBlocker quiet(cmbOwnSheet);
        cmbOwnSheet->clear();
        for (const LabelSheet& sheet : std::as_const(m_own))
            cmbOwnSheet->addItem(sheet.name);
        cmbOwnSheet->setCurrentIndex(m_own.isEmpty() ? -1 : std::max(0, cmbOwnSheet->findText(current)));
    }
    for (int column = 0; column < kAddresses; ++column)
        m_types->button(kOwnRow * kAddresses + column)->setEnabled(!m_own.isEmpty());
    cmbOwnSheet->setEnabled(!m_own.isEmpty());
    m_edit->setEnabled(!m_own.isEmpty());
    m_delete->setEnabled(!m_own.isEmpty());
    if (m_own.isEmpty() && m_types->checkedId() >= kOwnRow * kAddresses && m_types->checkedId() < kNameList)
        m_types->button(m_types->checkedId() % kAddresses)->setChecked(true);
    follow();
}

int LabelPanel::chosenOwn() const
{
    const int id = m_types->checkedId();
    return id >= kOwnRow * kAddresses && id < kNameList ? cmbOwnSheet->currentIndex() : -1;
}

LabelChoice LabelPanel::choice() const
{
    LabelChoice choice;
    const int id = m_types->checkedId();
    if (id >= kNameList) {
        choice.what = id == kAddressList ? LabelChoice::What::AddressList : LabelChoice::What::NameList;
        return choice;
    }
    choice.address = AddressSet(id % kAddresses);
    choice.sheet = chosenOwn() >= 0 ? m_own[chosenOwn()]
                                    : output::builtinSheets()[size_t(std::min(id / kAddresses, kTypes - 1))];
    choice.sheet.layout.firstLabel = spnFirst->value() - 1;
    choice.sheet.layout.copies = spnCopies->value();
    choice.sheet.layout.isFramed = chkFrame->isChecked();
    choice.isByHousehold = chkHousehold->isChecked();
    return choice;
}

void LabelPanel::follow()
{
    const LabelChoice chosen = choice();
    const bool isLabels = chosen.what == LabelChoice::What::Labels;
    for (QWidget* control :
        std::initializer_list<QWidget*>{m_picture, spnFirst, spnCopies, chkHousehold, chkFrame, m_test})
        control->setEnabled(isLabels);
    if (!isLabels)
        return lblSheet->setText(tr("On ordinary paper"));
    spnFirst->setMaximum(chosen.sheet.layout.labels());
    m_picture->setSheet(chosen.sheet);
    m_picture->setFirstLabel(spnFirst->value() - 1);
    lblSheet->setText(chosen.sheet.name);
}

void LabelPanel::editOwn(bool isNew)
{
    readOwn(cmbOwnSheet->currentText());
    if (!isNew && m_own.isEmpty())
        return;
    const int at = cmbOwnSheet->currentIndex();
    LabelSheet sheet = isNew ? choice().sheet : m_own.value(at);
    if (isNew && sheet.layout.width <= 0)
        sheet = output::builtinSheets().front();
    if (isNew)
        sheet.name.clear();
    QStringList taken;
    for (int other = 0; other < m_own.size(); ++other) {
        if (isNew || other != at)
            taken << m_own[other].name;
    }
    SheetDialog dialog(m_context, sheet, taken, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QList<LabelSheet> sheets = m_own;
    if (isNew)
        sheets << dialog.sheet();
    else
        sheets[at] = dialog.sheet();
    if (storeOwn(sheets, dialog.sheet().name) && isNew)
        m_types->button(kOwnRow * kAddresses + int(choice().address))->click();
}

void LabelPanel::deleteOwn()
{
    readOwn(cmbOwnSheet->currentText());
    const int at = cmbOwnSheet->currentIndex();
    if (at < 0
        || m_context.services.boxes.ask(tr("Do you want to forget the sheet %1?").arg(m_own[at].name),
               m_context.shared.AppTitle, platform::Icon::Warning)
            == platform::Answer::No)
        return;
    QList<LabelSheet> sheets = m_own;
    sheets.removeAt(at);
    storeOwn(sheets, {});
}

bool LabelPanel::storeOwn(const QList<LabelSheet>& sheets, const QString& current)
{
    const QString why = sheets.size() > kMostOwnSheets ? tr("there are %1 sheets already").arg(kMostOwnSheets)
                                                       : writeOwnSheets(m_context.services.drive, sheets);
    if (!why.isEmpty())
        m_context.services.boxes.warning(
            tr("Your sheets were not stored: %1.").arg(why), m_context.shared.AppTitle);
    else
        readOwn(current);
    return why.isEmpty();
}

bool showLabels(core::Context& context, jet::Recordset rows, const LabelChoice& choice, const QString& list)
{
    const bool national = context.shared.NationalMode;
    const QString today = jet::formatDate(context.services.clock.today(), core::datePattern(national));
    std::shared_ptr<const output::ReportSource> source
        = std::make_shared<output::RecordsetSource>(std::move(rows), output::reportDates(national));
    output::Report report;
    switch (choice.what) {
    case LabelChoice::What::Labels:
        if (choice.isByHousehold)
            source = output::householdsOf(*source, choice.address);
        report = output::labelReport(std::move(source), choice.address, choice.sheet, today);
        break;
    case LabelChoice::What::NameList: report = nameList(std::move(source), list); break;
    case LabelChoice::What::AddressList: report = addressList(std::move(source), list); break;
    }
    report.printDate = today;
    return output::ShowReportViewer(context, report, report.title);
}

} // namespace letters
