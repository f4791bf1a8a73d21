#include "core/shell/frmAbout.h"

#include "core/frame.h"
#include "widgets/theme.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSysInfo>
#include <QTextBrowser>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr QSize kSize{860, 600};
constexpr int kIconSize = 64;
constexpr int kListWidth = 190;
const QString kThirdParties = u"THIRD_PARTY.md"_s;

QString textOf(const QString& name)
{
    QFile file(u":/licenses/"_s + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

QString versionText()
{
    return u"Orvane Contacts %1\nQt %2\nSQLite %3\n%4 (%5)"_s.arg(QStringLiteral(ORVANE_VERSION),
        QString::fromLatin1(qVersion()), jet::Database::engineVersion(), QSysInfo::prettyProductName(),
        QSysInfo::currentCpuArchitecture());
}

frmAbout::frmAbout(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , lstLicences(new QListWidget)
    , txtLicence(new QTextBrowser)
{
    setWindowTitle(tr("About Orvane Contacts"));
    auto* picture = new QLabel;
    picture->setPixmap(widgets::icon(u"app").pixmap(kIconSize, kIconSize));
    auto* about
        = new QLabel(tr("An address book for one person or a small business: contacts with their family "
                        "and their work, birthdays, calls, letters and e-mail.\n\n"
                        "Made by the Orvane Contacts team. It may be used, copied and changed freely, "
                        "and comes without any warranty; the words that count are below."));
    about->setObjectName(u"lblAbout"_s);
    about->setTextFormat(Qt::PlainText);
    about->setWordWrap(true);
    auto* versions = new QLabel(versionText());
    versions->setObjectName(u"lblVersion"_s);
    versions->setTextFormat(Qt::PlainText);
    versions->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    versions->setAccessibleName(tr("Versions"));
    auto* copy = new QPushButton(tr("Cop&y the versions"));
    copy->setObjectName(u"cmdCopy"_s);
    copy->setToolTip(tr("For a letter to those who help you with the program"));
    auto* close = new QPushButton(tr("C&lose"));
    close->setObjectName(u"CmdClose"_s);
    widgets::setIcon(close, u"exit");
    lstLicences->setObjectName(u"lstLicences"_s);
    lstLicences->setAccessibleName(tr("Licences"));
    lstLicences->setFixedWidth(kListWidth);
    txtLicence->setObjectName(u"txtLicence"_s);
    txtLicence->setAccessibleName(tr("Text of the licence"));
    txtLicence->setOpenLinks(false);
    txtLicence->setTabChangesFocus(true);

    auto* head = new QHBoxLayout;
    head->setSpacing(16);
    head->addWidget(picture, 0, Qt::AlignTop);
    head->addWidget(about, 1, Qt::AlignTop);
    head->addWidget(versions, 0, Qt::AlignTop);
    auto* licences = new QHBoxLayout;
    licences->addWidget(lstLicences);
    licences->addWidget(txtLicence, 1);
    auto* foot = new QHBoxLayout;
    foot->addStretch(1);
    foot->addWidget(copy);
    foot->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 14, 14, 10);
    layout->setSpacing(12);
    layout->addLayout(head);
    layout->addLayout(licences, 1);
    layout->addLayout(foot);
    setFocusProxy(lstLicences);

    connect(lstLicences, &QListWidget::currentRowChanged, this, &frmAbout::showText);
    connect(copy, &QPushButton::clicked, this, [this] {
        QGuiApplication::clipboard()->setText(versionText());
        this->context().frame.showNotice(tr("The versions are in the clipboard"));
    });
    connect(close, &QPushButton::clicked, this, &Screen::closeRequested);
}

QSize frmAbout::sizeHint() const
{
    return kSize;
}

void frmAbout::load()
{
    const auto add = [this](const QString& caption, const QString& file) {
        auto* item = new QListWidgetItem(caption, lstLicences);
        item->setData(Qt::UserRole, file);
    };
    add(tr("What comes from others"), kThirdParties);
    for (const QString& file : QDir(u":/licenses"_s).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase)) {
        if (file != kThirdParties)
            add(file, file);
    }
    lstLicences->setCurrentRow(0);
}

void frmAbout::showText()
{
    const QListWidgetItem* item = lstLicences->currentItem();
    const QString file = item ? item->data(Qt::UserRole).toString() : QString();
    if (file == kThirdParties)
        txtLicence->setMarkdown(textOf(file));
    else
        txtLicence->setPlainText(textOf(file));
}

} // namespace shell
