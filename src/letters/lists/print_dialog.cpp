#include "letters/lists/print_dialog.h"

#include "output/preview/FrmReportViewer.h"
#include "widgets/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr int kWide = 880; // each type of labels in one line

} // namespace

PrintDialog::PrintDialog(core::Context& context, QWidget* parent)
    : QDialog(parent)
    , m_panel(new LabelPanel(context, LabelPanel::For::List))
    , lblWho(new QLabel)
{
    setObjectName(u"PrintDialog"_s);
    setWindowTitle(tr("Print labels and lists"));
    lblWho->setObjectName(u"lblWho"_s);
    lblWho->setTextFormat(Qt::PlainText);
    lblWho->setWordWrap(true);
    QFont strong = lblWho->font();
    strong.setBold(true);
    lblWho->setFont(strong);
    auto* close = new QPushButton(tr("Close"));
    close->setObjectName(u"cmdClosePrint"_s);
    close->setAutoDefault(false);
    widgets::setIcon(close, u"exit");
    auto* foot = new QHBoxLayout;
    foot->addStretch(1);
    foot->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblWho);
    layout->addWidget(m_panel, 1);
    layout->addLayout(foot);
    resize(kWide, sizeHint().height());
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_panel, &LabelPanel::previewWanted, this, [this] {
        accept();
        Q_EMIT chosen(m_panel->choice());
    });
    connect(m_panel, &LabelPanel::testWanted, this, [this, &context] {
        accept();
        output::ShowReportViewer(
            context, output::testSheet(m_panel->choice().sheet), tr("Test page of labels"));
    });
}

void PrintDialog::ask(const QString& who)
{
    lblWho->setText(who);
    open();
    m_panel->setFocus();
}

} // namespace letters
