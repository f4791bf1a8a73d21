#include "core/shell/notice_strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr int kShownMs = 8000;
constexpr int kLookAgainMs = 1000;

} // namespace

NoticeStrip::NoticeStrip(QWidget* parent)
    : QFrame(parent)
    , m_label(new QLabel(this))
    , m_button(new QToolButton(this))
{
    setObjectName(u"NoticeStrip"_s);
    setFrameShape(QFrame::NoFrame);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_label->setObjectName(u"lblNotice"_s);
    // It names what a person stored, which is never markup, and which never widens the window.
    m_label->setTextFormat(Qt::PlainText);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_button->setObjectName(u"cmdNotice"_s);
    m_button->setAutoRaise(true);
    m_button->setFocusPolicy(Qt::StrongFocus);
    // Not the button's own key, which waits for the picture of a press.
    auto* key = new QShortcut(QKeySequence(u"F8"_s), this);
    connect(key, &QShortcut::activated, this, &NoticeStrip::perform);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 8, 4);
    layout->addWidget(m_label, 1);
    layout->addWidget(m_button);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &NoticeStrip::leave);
    connect(m_button, &QToolButton::clicked, this, &NoticeStrip::perform);
    hide();
}

void NoticeStrip::showNotice(const QString& text, const QString& actionText, std::function<void()> action)
{
    m_text = text.simplified();
    m_action = std::move(action);
    m_button->setVisible(bool(m_action));
    m_button->setText(tr("%1 (F8)").arg(QString(actionText).replace(u'&', u"&&"_s)));
    show();
    elide();
    setAccessibleName(m_text);
    m_timer.start(kShownMs);
}

void NoticeStrip::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    elide();
}

void NoticeStrip::elide()
{
    m_label->setText(m_label->fontMetrics().elidedText(m_text, Qt::ElideMiddle, m_label->width()));
}

void NoticeStrip::perform()
{
    const auto action = std::exchange(m_action, {});
    hide();
    m_timer.stop();
    // Last, since it may show the next notice.
    if (action)
        action();
}

void NoticeStrip::leave()
{
    if (underMouse() || m_button->hasFocus())
        m_timer.start(kLookAgainMs);
    else
        hide();
}

} // namespace shell
