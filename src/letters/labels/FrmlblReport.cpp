#include "letters/labels/FrmlblReport.h"

#include "core/contact_lookups.h"
#include "core/save_failure.h"
#include "letters/labels/label_panel.h"
#include "letters/labels/person_labels.h"
#include "output/preview/FrmReportViewer.h"
#include "widgets/fields.h"
#include "widgets/theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace letters {

FrmlblReport::FrmlblReport(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_panel(new LabelPanel(context, LabelPanel::For::Person))
    , lblName(new QLabel)
{
    setWindowTitle(tr("Labels for one person"));
    lblName->setObjectName(u"lblName"_s);
    lblName->setAccessibleName(tr("Person"));
    lblName->setTextFormat(Qt::PlainText);
    lblName->setWordWrap(true);
    QFont large = lblName->font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    lblName->setFont(large);
    auto* close = new QPushButton(tr("Close"));
    close->setObjectName(u"CmdExit"_s);
    close->setToolTip(tr("Close the screen (Esc)"));
    close->setAutoDefault(false);
    widgets::setIcon(close, u"exit");
    auto* head = new QHBoxLayout;
    head->addWidget(lblName, 1);
    head->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 10, 12, 12);
    layout->addLayout(head);
    layout->addWidget(m_panel);
    layout->addStretch(1);
    setFocusProxy(m_panel);
    connect(m_panel, &LabelPanel::previewWanted, this, &FrmlblReport::preview);
    connect(m_panel, &LabelPanel::testWanted, this, [this] {
        output::ShowReportViewer(
            this->context(), output::testSheet(m_panel->choice().sheet), tr("Test page of labels"));
    });
    connect(close, &QPushButton::clicked, this, &Screen::closeRequested);
}

void FrmlblReport::load()
{
    m_id = shared().selectedContactId;
    m_name = shared().selectedContactName;
    showPerson();
}

bool FrmlblReport::showContact(qint64 id)
{
    const jet::Recordset person = context().data.openRecordset(core::contactNameSql(id));
    if (!person.hasRow())
        return false;
    m_id = id;
    m_name = person.textOrEmpty(u"name");
    showPerson();
    return true;
}

void FrmlblReport::bookChanged()
{
    if (m_id != 0)
        m_name = context().data.openRecordset(core::contactNameSql(m_id)).textOrEmpty(u"name");
    showPerson();
}

void FrmlblReport::showPerson()
{
    const bool isThere = !m_name.trimmed().isEmpty();
    setFrameTitle(isThere ? tr("Labels - %1").arg(m_name.simplified()) : windowTitle());
    lblName->setText(isThere
            ? m_name.simplified()
            : tr("No contact is chosen. Choose one in a list, and its tool \"Print a label\"."));
    widgets::child<QPushButton>(this, u"cmdPreview"_s)->setEnabled(isThere);
}

void FrmlblReport::preview()
{
    LabelChoice choice = m_panel->choice();
    choice.sheet.layout.copies = 1;
    const int labels = choice.sheet.layout.labels() - choice.sheet.layout.firstLabel;
    jet::Recordset rows = personLabels(context().data, m_name, m_id, choice.address, labels);
    if (!rows.isValid())
        return core::tellFailedSave(context());
    if (!rows.isEmpty())
        showLabels(context(), std::move(rows), choice, {});
}

void FrmlblReport::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeRequested();
    else
        Screen::keyPressEvent(event);
}

} // namespace letters
