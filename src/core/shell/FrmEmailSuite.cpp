#include "core/shell/FrmEmailSuite.h"

#include "core/screens.h"
#include "core/shell/tool_bar_table.h"
#include "platform/shell.h"
#include "widgets/theme.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>

using namespace Qt::StringLiterals;

namespace shell {

FrmEmailSuite::FrmEmailSuite(core::Context& context)
    : m_context(context)
{
    setObjectName(u"FrmEmailSuite"_s);
    setWindowTitle(tr("Orvane E-mail"));
    auto* list = new QListWidget;
    list->setObjectName(u"lBarContacts"_s);
    list->setAccessibleName(tr("E-mail commands"));
    for (const ListBarArea& area : listBarAreas()) {
        if (area.icon != u"envelope")
            continue;
        for (const ListBarRow& row : area.rows) {
            auto* item = new QListWidgetItem(
                widgets::icon(area.icon), QCoreApplication::translate("shell", row.caption), list);
            // The screens of e-mail are placed by this shell when they come; until then there is none to
            // open.
            item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
            item->setToolTip(tr("Not available yet"));
        }
    }
    auto* dock = new QDockWidget(tr("E-mail"), this);
    dock->setObjectName(u"EmailDock"_s);
    dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
    dock->setWidget(list);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    auto* empty = new QLabel(tr("The screens of e-mail are not part of this version yet."));
    empty->setAlignment(Qt::AlignCenter);
    empty->setEnabled(false);
    setCentralWidget(empty);
    resize(900, 600);
}

bool FrmEmailSuite::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        Q_EMIT firstActivated();
    return QMainWindow::event(event);
}

void FrmEmailSuite::closeEvent(QCloseEvent* event)
{
    event->accept();
    m_context.services.shell.endProgram();
}

} // namespace shell
