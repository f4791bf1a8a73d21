#include "platform/help_window.h"

#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>

#include "platform/drive.h"
#include "platform/shell.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

const QUrl& startPage()
{
    static const QUrl page(u"qrc:/help/index.html"_s);
    return page;
}

} // namespace

HelpWindow::HelpWindow(Shell& shell)
    : m_shell(shell)
    , m_pages(new QTextBrowser(this))
{
    setObjectName(u"HelpWindow"_s);
    setWindowTitle(tr("Orvane Contacts Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    resize(820, 640);
    m_pages->setObjectName(u"pages"_s);
    m_pages->setAccessibleName(tr("Help page"));
    m_pages->setOpenLinks(false);

    auto* bar = new QToolBar(this);
    auto* back = bar->addAction(tr("&Back"), m_pages, &QTextBrowser::backward);
    auto* forward = bar->addAction(tr("&Forward"), m_pages, &QTextBrowser::forward);
    auto* home = bar->addAction(tr("&Home"), this, [this] { showPage(startPage()); });
    back->setObjectName(u"back"_s);
    back->setShortcuts(QKeySequence::Back);
    back->setEnabled(false);
    forward->setObjectName(u"forward"_s);
    forward->setShortcuts(QKeySequence::Forward);
    forward->setEnabled(false);
    home->setObjectName(u"home"_s);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(m_pages);

    connect(m_pages, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_pages, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(m_pages, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);
}

void HelpWindow::showPage(const QUrl& page)
{
    const bool missing = page == startPage() && !QFile::exists(u":"_s + page.path());
    if (missing)
        m_pages->setPlainText(tr("The help pages are not part of this installation."));
    else
        m_pages->setSource(page);
}

void HelpWindow::follow(const QUrl& link)
{
    const QUrl target = m_pages->source().resolved(link);
    const bool isPage = target.scheme() == "qrc"_L1
        || (target.isLocalFile() && target.path().contains(".htm"_L1, Qt::CaseInsensitive));
    if (isPage)
        m_pages->setSource(target);
    else
        m_shell.openAddress(target.toString(QUrl::FullyEncoded));
}

WindowHelpViewer::WindowHelpViewer(const Drive& drive, Shell& shell)
    : m_drive(drive)
    , m_shell(shell)
{
}

WindowHelpViewer::~WindowHelpViewer()
{
    delete m_window;
}

void WindowHelpViewer::openHelp(QStringView path)
{
    const QString file = m_drive.local(path);
    const QString suffix = QFileInfo(file).suffix().toLower();
    const bool isPage = (suffix == "htm"_L1 || suffix == "html"_L1) && QFileInfo(file).isFile();
    if (!m_window)
        m_window = new HelpWindow(m_shell);
    m_window->showPage(isPage ? QUrl::fromLocalFile(file) : startPage());
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

} // namespace platform
