#include "telephone/dialer/modem_dialogue.h"

#include "platform/serial_port.h"

#include <QTimer>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

constexpr QByteArrayView kAnswer = "OK";
constexpr QByteArrayView kHangUp = "ATH\r";
constexpr qsizetype kMostHeard = 1024; ///< of a modem that never stops talking
// What was written last is on its way; a port that is closed at once might cut it off.
constexpr int kLastWordsMs = 100;

} // namespace

// With the semicolon the modem stays ready for commands, so that it can let go again.
QByteArray dialCommand(const QString& number)
{
    QByteArray digits;
    for (const QChar c : number) {
        if (c >= u' ' && c <= u'~' && c != u';')
            digits += c.toLatin1();
    }
    return "ATDT" + digits + ";\r";
}

ModemDialogue::ModemDialogue(platform::SerialPort& port, QObject* parent)
    : QObject(parent)
    , m_port(port)
{
}

ModemDialogue::~ModemDialogue()
{
    // Without a call the port may be another one's by now.
    if (!isRunning())
        return;
    m_port.setListener({});
    if (m_state != State::LettingGo)
        m_port.Output(kHangUp.toByteArray());
    m_port.PortOpen(false);
}

bool ModemDialogue::dial(int port, const QString& number)
{
    ++m_call;
    m_state = State::Idle;
    m_heard.clear();
    Q_EMIT progressed(40);
    m_port.CommPort(port);
    m_port.Settings(u"9600,N,8,1"_s);
    if (!m_port.PortOpen() && !m_port.PortOpen(true))
        return false;
    Q_EMIT progressed(60);
    m_port.setListener([this] { listen(); });
    m_port.InBufferCount(0);
    m_state = State::Waiting;
    if (!m_port.Output(dialCommand(number))) {
        m_port.setListener({});
        m_port.PortOpen(false);
        m_state = State::Idle;
        return false;
    }
    Q_EMIT progressed(80);
    return true;
}

void ModemDialogue::listen()
{
    if (m_state == State::Idle)
        return;
    if (!m_port.PortOpen())
        return finish(m_state == State::LettingGo ? m_end : End::Vanished);
    if (m_state != State::Waiting)
        return;
    if (m_port.InBufferCount() > 0)
        m_heard += m_port.Input();
    if (m_heard.contains(kAnswer)) {
        m_state = State::Answered;
        Q_EMIT answered();
        return;
    }
    const qsizetype lineEnd = m_heard.lastIndexOf('\r');
    const QByteArray line = m_heard.left(lineEnd).trimmed();
    if (lineEnd >= 0 && !line.isEmpty())
        Q_EMIT said(QString::fromLatin1(line.mid(line.lastIndexOf('\r') + 1).trimmed().left(80)));
    if (m_heard.size() > kMostHeard)
        m_heard = m_heard.right(kAnswer.size());
}

void ModemDialogue::hangUp()
{
    if (m_state == State::Answered)
        letGo(End::Done);
}

void ModemDialogue::cancel()
{
    if (m_state == State::Waiting || m_state == State::Answered)
        letGo(End::Cancelled);
}

void ModemDialogue::letGo(End end)
{
    m_state = State::LettingGo;
    m_end = end;
    m_port.Output(kHangUp.toByteArray());
    QTimer::singleShot(kLastWordsMs, this, [this, call = m_call] {
        if (m_state == State::LettingGo && call == m_call)
            finish(m_end);
    });
}

void ModemDialogue::finish(End end)
{
    m_state = State::Idle;
    m_port.setListener({});
    m_port.PortOpen(false);
    Q_EMIT ended(end);
}

} // namespace telephone
