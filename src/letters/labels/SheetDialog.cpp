#include "letters/labels/SheetDialog.h"

#include "letters/labels/sheet_picture.h"
#include "platform/message_boxes.h"
#include "widgets/fields.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <cmath>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

using output::LabelSheet;

struct Measure {
    QStringView name;
    const char* label;
    double& (*of)(LabelSheet&);
};
constexpr Measure kMeasures[] = {
    {u"spnPaperWidth", QT_TRANSLATE_NOOP("letters::SheetDialog", "Paper, &width"),
        [](LabelSheet& sheet) -> double& { return sheet.paper.width; }},
    {u"spnPaperHeight", QT_TRANSLATE_NOOP("letters::SheetDialog", "Paper, &height"),
        [](LabelSheet& sheet) -> double& { return sheet.paper.height; }},
    {u"spnLeft", QT_TRANSLATE_NOOP("letters::SheetDialog", "&Left of the first label"),
        [](LabelSheet& sheet) -> double& { return sheet.layout.left; }},
    {u"spnTop", QT_TRANSLATE_NOOP("letters::SheetDialog", "Abo&ve the first label"),
        [](LabelSheet& sheet) -> double& { return sheet.layout.top; }},
    {u"spnWidth", QT_TRANSLATE_NOOP("letters::SheetDialog", "Label, w&idth"),
        [](LabelSheet& sheet) -> double& { return sheet.layout.width; }},
    {u"spnHeight", QT_TRANSLATE_NOOP("letters::SheetDialog", "Label, hei&ght"),
        [](LabelSheet& sheet) -> double& { return sheet.layout.height; }},
    {u"spnPitchX", QT_TRANSLATE_NOOP("letters::SheetDialog", "From a label to the ne&xt one"),
        [](LabelSheet& sheet) -> double& { return sheet.layout.pitchX; }},
    {u"spnPitchY", QT_TRANSLATE_NOOP("letters::SheetDialog", "From a row to the nex&t one"),
        [](LabelSheet& sheet) -> double& { return sheet.layout.pitchY; }},
};
constexpr int kOfPaper = 2; // the first measures

struct PaperKind {
    const char* name;
    double width;
    double height;
};
constexpr PaperKind kPapers[] = {
    {QT_TRANSLATE_NOOP("letters::SheetDialog", "A4"), 210 * output::kTwipsAMillimetre,
        297 * output::kTwipsAMillimetre},
    {QT_TRANSLATE_NOOP("letters::SheetDialog", "US Letter"), 8.5 * output::kTwipsAnInch,
        11 * output::kTwipsAnInch},
    {QT_TRANSLATE_NOOP("letters::SheetDialog", "A5"), 148 * output::kTwipsAMillimetre,
        210 * output::kTwipsAMillimetre},
};
constexpr double kMostTwips = 1200 * output::kTwipsAMillimetre;
constexpr int kMostInARow = 40;
constexpr int kLongestName = 60;

QDoubleSpinBox* spinOf(const Measure& measure)
{
    auto* spin = new QDoubleSpinBox;
    spin->setObjectName(measure.name.toString());
    spin->setKeyboardTracking(true);
    return spin;
}

} // namespace

SheetDialog::SheetDialog(
    core::Context& context, const LabelSheet& sheet, const QStringList& taken, QWidget* parent)
    : QDialog(parent)
    , m_context(context)
    , m_sheet(sheet)
    , m_taken(taken)
    , txtSheetName(new QLineEdit)
    , cmbPaper(new QComboBox)
    , cmbUnit(new QComboBox)
    , spnColumns(new QSpinBox)
    , spnRows(new QSpinBox)
    , lblComplaint(new QLabel)
    , m_picture(new SheetPicture)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel))
    , m_shownUnit(output::kTwipsAMillimetre)
{
    setObjectName(u"SheetDialog"_s);
    setWindowTitle(tr("Sheet of labels"));
    layOut();
    showSheet();
    connect(cmbPaper, &QComboBox::activated, this, &SheetDialog::choosePaper);
    connect(cmbUnit, &QComboBox::currentIndexChanged, this, &SheetDialog::chooseUnit);
    connect(txtSheetName, &QLineEdit::textChanged, this, &SheetDialog::follow);
    for (QSpinBox* spin : {spnColumns, spnRows})
        connect(spin, &QSpinBox::valueChanged, this, &SheetDialog::follow);
    for (QDoubleSpinBox* spin : std::as_const(m_measures))
        connect(spin, &QDoubleSpinBox::valueChanged, this, &SheetDialog::follow);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void SheetDialog::layOut()
{
    auto* layout = new QVBoxLayout(this);
    auto* sides = new QHBoxLayout;
    auto* form = new QFormLayout;
    layout->addLayout(sides);
    sides->addLayout(form);
    const auto add = [form](const QString& name, const QString& label, QWidget* control) {
        control->setObjectName(name);
        form->addRow(label, control);
    };
    txtSheetName->setMaxLength(kLongestName);
    add(u"txtSheetName"_s, tr("&Name"), txtSheetName);
    for (const PaperKind& paper : kPapers)
        cmbPaper->addItem(tr(paper.name));
    cmbPaper->addItem(tr("Other"));
    add(u"cmbPaper"_s, tr("&Paper"), cmbPaper);
    cmbUnit->addItems({tr("Millimetres"), tr("Inches")});
    add(u"cmbUnit"_s, tr("Meas&ured in"), cmbUnit);
    for (QSpinBox* spin : {spnColumns, spnRows})
        spin->setRange(1, kMostInARow);
    int at = 0;
    for (const Measure& measure : kMeasures) {
        if (at++ == kOfPaper) {
            add(u"spnColumns"_s, tr("Labels &beside one another"), spnColumns);
            add(u"spnRows"_s, tr("&Rows of labels"), spnRows);
        }
        m_measures << spinOf(measure);
        form->addRow(tr(measure.label), m_measures.last());
    }
    for (auto* spin : findChildren<QAbstractSpinBox*>()) {
        const auto* label = qobject_cast<QLabel*>(form->labelForField(spin));
        widgets::child<QLineEdit>(spin, u"qt_spinbox_lineedit"_s)
            ->setAccessibleName(label->text().remove(u'&'));
    }
    lblComplaint->setObjectName(u"lblComplaint"_s);
    lblComplaint->setWordWrap(true);
    lblComplaint->setMinimumHeight(2 * fontMetrics().lineSpacing());
    m_picture->setMayChoose(false);
    m_picture->setMinimumSize(200, 270);
    sides->addWidget(m_picture, 1);
    layout->addWidget(lblComplaint);
    layout->addWidget(m_buttons);
}

double SheetDialog::unit() const
{
    return cmbUnit->currentIndex() == 0 ? output::kTwipsAMillimetre : output::kTwipsAnInch;
}

void SheetDialog::showSheet()
{
    m_isShowing = true;
    m_shownUnit = unit();
    const bool isInches = cmbUnit->currentIndex() == 1;
    txtSheetName->setText(m_sheet.name);
    spnColumns->setValue(m_sheet.layout.columns);
    spnRows->setValue(m_sheet.layout.rows);
    for (qsizetype at = 0; at < m_measures.size(); ++at) {
        QDoubleSpinBox* spin = m_measures[at];
        spin->setDecimals(isInches ? 4 : 2);
        spin->setSingleStep(isInches ? 0.0625 : 0.5);
        spin->setRange(0, kMostTwips / m_shownUnit);
        spin->setSuffix(isInches ? tr(" in") : tr(" mm"));
        spin->setValue(kMeasures[at].of(m_sheet) / m_shownUnit);
    }
    m_isShowing = false;
    follow();
}

void SheetDialog::choosePaper(int paper)
{
    if (paper >= int(std::size(kPapers)))
        return m_measures[0]->setFocus();
    m_measures[0]->setValue(kPapers[paper].width / m_shownUnit);
    m_measures[1]->setValue(kPapers[paper].height / m_shownUnit);
}

void SheetDialog::chooseUnit()
{
    const bool isChanged = m_isChanged;
    m_sheet = sheet();
    showSheet();
    m_isChanged = isChanged;
}

// What was not changed keeps its whole measure, which may have more places than are shown.
LabelSheet SheetDialog::sheet() const
{
    LabelSheet read = m_sheet;
    read.name = txtSheetName->text().simplified();
    read.layout.columns = spnColumns->value();
    read.layout.rows = spnRows->value();
    for (qsizetype at = 0; at < m_measures.size(); ++at) {
        double& measure = kMeasures[at].of(read);
        const double least = std::pow(10, -m_measures[at]->decimals());
        if (std::abs(m_measures[at]->value() - measure / m_shownUnit) >= least * 0.6)
            measure = m_measures[at]->value() * m_shownUnit;
    }
    return read;
}

void SheetDialog::reject()
{
    if (!m_isChanged
        || m_context.services.boxes.ask(tr("What you entered was not saved. Do you want to discard it?"),
               m_context.shared.AppTitle, platform::Icon::Warning)
            == platform::Answer::Yes)
        QDialog::reject();
}

void SheetDialog::follow()
{
    if (m_isShowing)
        return;
    m_isChanged = isVisible();
    const LabelSheet read = sheet();
    m_picture->setSheet(read);
    int paper = 0;
    for (const PaperKind& kind : kPapers) {
        if (std::abs(kind.width - read.paper.width) < 20 && std::abs(kind.height - read.paper.height) < 20)
            break;
        ++paper;
    }
    cmbPaper->setCurrentIndex(paper);
    QString complaint = output::sheetComplaint(read);
    if (complaint.isEmpty() && read.name.isEmpty())
        complaint = tr("Give the sheet a name, such as that on its package.");
    if (complaint.isEmpty() && m_taken.contains(read.name, Qt::CaseInsensitive))
        complaint = tr("Another sheet has this name.");
    lblComplaint->setText(complaint);
    m_buttons->button(QDialogButtonBox::Save)->setEnabled(complaint.isEmpty());
}

} // namespace letters
