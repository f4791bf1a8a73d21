#include "views/full_view/full_view_header.h"

#include "widgets/fields.h"
#include "widgets/picture_box.h"
#include "widgets/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace views {

namespace {

QPushButton* link(const QString& name, const QString& accessibleName, const QString& toolTip)
{
    auto* button = new QPushButton;
    button->setObjectName(name);
    button->setAccessibleName(accessibleName);
    button->setToolTip(toolTip);
    button->setFlat(true);
    button->setCursor(Qt::PointingHandCursor);
    button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    button->setStyleSheet(
        u"QPushButton { color: palette(link); text-decoration: underline; border: none; padding: 1px 4px; }"
        "QPushButton:focus { border: 1px dotted palette(link); }"_s);
    button->setMinimumWidth(20); // a long text must not widen the window
    button->hide();
    return button;
}

QToolButton* command(const QString& name, QStringView icon, const QString& toolTip)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    widgets::setIcon(button, icon);
    button->setIconSize({22, 22});
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

FullViewHeader::FullViewHeader(QWidget* parent)
    : QWidget(parent)
    , ix1(new widgets::PictureBox)
    , SSCommand8(new QPushButton)
    , LblAsso1(link(u"LblAsso1"_s, tr("Associate"), tr("Go to this contact")))
    , LblAsso2(link(u"LblAsso2"_s, tr("Associate"), tr("Go to this contact")))
    , CmdTel(command(u"CmdTel"_s, u"phone", tr("Call")))
    , CmdAdd(command(u"CmdAdd"_s, u"letter", tr("Send Letter")))
    , CmdEmail(command(u"CmdEmail"_s, u"envelope", tr("Send e-mail")))
    , m_mobile{link(u"LblMobile"_s, tr("Mobile"), tr("Call this number")), {}}
    , m_mail{link(u"LblEmail"_s, tr("E-mail"), tr("Write an e-mail")), {}}
    , m_plainName(new QLabel)
    , m_facts(new QLabel)
    , m_associates(new QLabel(tr("Associates:")))
{
    ix1->setObjectName(u"ix1"_s);
    ix1->setFixedSize(76, 76);
    ix1->setAccessibleName(tr("Picture"));
    connect(ix1, &widgets::PictureBox::pictureRead, this,
        [this] { ix1->setCursor(ix1->hasPicture() ? Qt::PointingHandCursor : Qt::ArrowCursor); });
    SSCommand8->setObjectName(u"SSCommand8"_s);
    SSCommand8->setFlat(true);
    SSCommand8->setToolTip(tr("View all linked data"));
    SSCommand8->setAccessibleDescription(tr("View all linked data"));
    // The font as a style sheet, since the frame's own sheet would win over one that is set.
    SSCommand8->setStyleSheet(
        u"QPushButton { font-size: 17pt; font-weight: 600; text-align: left; border: 1px solid transparent;"
        " border-radius: 5px; padding: 1px 4px; }"
        "QPushButton:hover, QPushButton:focus { border-color: palette(mid); }"_s);
    SSCommand8->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    SSCommand8->setContextMenuPolicy(Qt::CustomContextMenu);
    m_plainName->setObjectName(u"lblPlainName"_s);
    m_plainName->setTextFormat(Qt::PlainText);
    m_plainName->setStyleSheet(u"font-size: 17pt; font-weight: 600; padding: 2px 0px;"_s);
    m_plainName->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_plainName->hide();
    for (const Reach* reach : {&m_mobile, &m_mail})
        connect(
            reach->button, &QPushButton::clicked, this, [this, reach] { Q_EMIT reachChosen(reach->text); });
    m_facts->setTextFormat(Qt::PlainText);
    m_facts->setContentsMargins(6, 0, 0, 0);
    m_facts->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_associates->setContentsMargins(6, 0, 0, 0);
    m_associates->hide();

    auto* links = new QHBoxLayout;
    links->setSpacing(4);
    links->addWidget(m_associates);
    links->addWidget(LblAsso1);
    links->addWidget(LblAsso2);
    links->addStretch(1);
    auto* reaches = new QHBoxLayout;
    reaches->setSpacing(12);
    reaches->addWidget(m_mobile.button);
    reaches->addWidget(m_mail.button);
    reaches->addStretch(1);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addStretch(1);
    texts->addWidget(SSCommand8);
    texts->addWidget(m_plainName);
    texts->addWidget(m_facts);
    texts->addLayout(reaches);
    texts->addLayout(links);
    texts->addStretch(1);
    auto* commands = new QHBoxLayout;
    commands->setSpacing(4);
    for (QToolButton* button : {CmdTel, CmdEmail, CmdAdd})
        commands->addWidget(button);
    auto* right = new QVBoxLayout;
    right->addStretch(1);
    right->addLayout(commands);
    right->addStretch(1);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 8);
    layout->setSpacing(12);
    layout->addWidget(ix1);
    layout->addLayout(texts, 1);
    layout->addLayout(right);
}

void FullViewHeader::showPicture(const QString& path)
{
    ix1->setPath(path);
}

void FullViewHeader::showPlainName(const QString& name)
{
    widgets::setTextOf(m_plainName, name);
    m_plainName->setHidden(name.isEmpty());
    SSCommand8->setHidden(!name.isEmpty());
}

void FullViewHeader::tidy(const QStringList& facts)
{
    QStringList shown;
    for (const QString& fact : facts) {
        if (!fact.trimmed().isEmpty() && fact.trimmed() != u"-")
            shown << fact.trimmed();
    }
    widgets::setTextOf(m_facts, shown.join(u"   ·   "_s));
    for (QPushButton* button : {LblAsso1, LblAsso2})
        button->setHidden(button->text().isEmpty());
    m_associates->setHidden(LblAsso1->isHidden() && LblAsso2->isHidden());
}

void FullViewHeader::showReach(const NoteText& mobile, const NoteText& mail)
{
    m_mobile.text = mobile;
    m_mail.text = mail;
    for (const Reach* reach : {&m_mobile, &m_mail}) {
        widgets::setTextOf(reach->button, reach->text.text);
        reach->button->setHidden(reach->text.text.isEmpty());
    }
}

} // namespace views
