#include "core/shell/frmSplash.h"

#include "core/paint_timing.h"
#include "platform/message_boxes.h"
#include "widgets/theme.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace shell {

frmSplash::frmSplash(core::Context& context)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
    , m_context(context)
{
    setObjectName(u"frmSplash"_s);
    setWindowTitle(tr("Orvane-Contacts"));
    layOut();
    Timer1.setInterval(100);
    Timer1.setTimerType(Qt::PreciseTimer);
    Timer2.setInterval(500);
    connect(&Timer1, &QTimer::timeout, this, &frmSplash::tick);
    connect(&Timer2, &QTimer::timeout, this, &frmSplash::animate);
    core::reportFirstPaint(this);
}

void frmSplash::layOut()
{
    setFixedSize(480, 280);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());

    const auto label = [this](const QString& name, const QString& text, int points, bool bold) {
        auto* made = new QLabel(text, this);
        made->setObjectName(name);
        QFont font = made->font();
        font.setPointSize(points);
        font.setBold(bold);
        made->setFont(font);
        made->setStyleSheet(u"color: white; background: transparent"_s);
        return made;
    };
    auto* name = label(u"lblName"_s, tr("Orvane Contacts"), 24, true);
    auto* motto = label(u"lblMotto"_s, tr("Do all you want ...........Your way"), 11, false);
    auto* version = label(u"LblVersion"_s, tr("Version %1").arg(QStringLiteral(ORVANE_VERSION)), 9, false);
    auto* passwordLabel = label(u"lblPassword"_s, tr("Password"), 9, false);

    txtpassword = new QLineEdit(this);
    txtpassword->setObjectName(u"txtpassword"_s);
    txtpassword->setEchoMode(QLineEdit::Password);
    txtpassword->setMaximumWidth(140);
    txtpassword->setAccessibleName(tr("Password"));
    passwordLabel->setBuddy(txtpassword);
    auto* cmdNext = new QPushButton(tr("Next"), this);
    cmdNext->setObjectName(u"cmdNext"_s);
    cmdNext->setToolTip(tr("Log in"));
    connect(cmdNext, &QPushButton::clicked, this, &frmSplash::logIn);
    connect(txtpassword, &QLineEdit::returnPressed, this, &frmSplash::logIn);

    dxProgressBar1 = new QProgressBar(this);
    dxProgressBar1->setObjectName(u"dxProgressBar1"_s);
    dxProgressBar1->setRange(0, 100);
    dxProgressBar1->setTextVisible(false);
    dxProgressBar1->setFixedHeight(6);
    dxProgressBar1->hide();

    auto* login = new QHBoxLayout;
    login->addWidget(version);
    login->addStretch();
    login->addWidget(passwordLabel);
    login->addWidget(txtpassword);
    login->addWidget(cmdNext);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(28, 28, 28, 18);
    whole->addStretch();
    whole->addWidget(name);
    whole->addWidget(motto);
    whole->addStretch();
    whole->addLayout(login);
    whole->addWidget(dxProgressBar1);
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
}

// Nothing is told here when the book can not be read; the first tick is where that shows.
void frmSplash::load()
{
    SetupRecordset = m_context.data.openRecordset(u"Select * from ov_Setup"_s);
    Timer1.start();
}

void frmSplash::tick()
{
    ++TickCount;
    if (TickCount < 1)
        return;
    if (!SetupRecordset.isValid()) {
        Timer1.stop();
        Q_EMIT bookUnreadable();
        return;
    }
    handOver(SetupRecordset.flag(u"Email") ? &frmSplash::emailShellWanted : &frmSplash::mainShellWanted);
}

// A shell may have a question when it comes up, which stands above this window: no tick meanwhile, since it
// would bring the shell in front and take the window away below the question.
void frmSplash::handOver(void (frmSplash::*wanted)())
{
    Timer1.stop();
    const QPointer<frmSplash> self(this);
    Q_EMIT(this->*wanted)();
    if (self)
        Timer1.start();
}

// Kept: Esc brings the main shell at once, whatever the setting says, and the tick goes on as before.
void frmSplash::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        handOver(&frmSplash::mainShellWanted);
    else
        QWidget::keyPressEvent(event);
}

bool frmSplash::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        QGuiApplication::restoreOverrideCursor();
        Q_EMIT activated();
    }
    return QWidget::event(event);
}

void frmSplash::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QLinearGradient sky(0, 0, width(), height());
    sky.setColorAt(0, QColor(0x1e, 0x3a, 0x8a));
    sky.setColorAt(1, QColor(0x0e, 0x74, 0x90));
    painter.fillRect(rect(), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 18));
    painter.drawEllipse(QPoint(width() - 60, 40), 150, 150);
    painter.drawEllipse(QPoint(width() - 10, 180), 110, 110);
    QIcon(u":/icons/app.svg"_s).paint(&painter, QRect(28, 28, 56, 56));
}

void frmSplash::logIn()
{
    if (txtpassword->text() != m_password) {
        m_context.services.boxes.information(tr("Invalid Password. Try again !!!!"), windowTitle());
        txtpassword->clear();
        txtpassword->setFocus();
        return;
    }
    Timer2.start();
    dxProgressBar1->show();
    setCursor(Qt::WaitCursor);
    Q_EMIT previousCallsWanted();
}

void frmSplash::animate()
{
    const int value = dxProgressBar1->value();
    dxProgressBar1->setValue(value < dxProgressBar1->maximum() - 5 ? value + 5 : 0);
}

} // namespace shell
