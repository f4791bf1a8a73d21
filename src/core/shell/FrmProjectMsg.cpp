#include "core/shell/FrmProjectMsg.h"

#include "platform/shell.h"
#include "widgets/theme.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace shell {

FrmProjectMsg::FrmProjectMsg(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , Web1(new QTextBrowser(this))
{
    setWindowTitle(tr("Orvane programs"));
    Web1->setObjectName(u"Web1"_s);
    Web1->setAccessibleName(tr("Product pages"));
    Web1->setOpenLinks(false);
    connect(Web1, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        if (link.isRelative() || link.scheme() == u"qrc")
            Web1->setSource(link);
        else
            this->context().services.shell.openAddress(link.toString());
    });

    auto* row = new QHBoxLayout;
    const auto button = [&](const QString& name, const QString& text, QStringView icon, auto action) {
        auto* made = new QPushButton(text, this);
        made->setObjectName(name);
        widgets::setIcon(made, icon);
        connect(made, &QPushButton::clicked, this, action);
        row->addWidget(made);
        return made;
    };
    auto* back = button(u"cmdBack"_s, tr("&Back"), u"previous", [this] { Web1->backward(); });
    auto* forward = button(u"cmdfor"_s, tr("&Forward"), u"next", [this] { Web1->forward(); });
    button(u"CmdHome"_s, tr("&Home"), u"home", [this] { Web1->home(); });
    row->addStretch();
    button(u"CmdClose"_s, tr("&Close"), u"cancel", [this] { Q_EMIT closeRequested(); });
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(Web1, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(Web1, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);

    auto* whole = new QVBoxLayout(this);
    whole->addWidget(Web1);
    whole->addLayout(row);
    setMinimumSize(560, 420);
}

void FrmProjectMsg::load()
{
    Web1->setSource(QUrl(u"qrc:/help/product/DescIndex.html"_s));
}

} // namespace shell
