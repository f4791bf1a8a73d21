#pragma once

#include <QObject>
#include <QString>

namespace platform {
class SerialPort;
}

namespace telephone {

/// A call by a voice modem: it dials, says that it has done so, and lets go of the line when somebody has
/// picked up the receiver. Waits without a limit and without holding anything up.
class ModemDialogue : public QObject {
    Q_OBJECT

public:
    enum class End {
        Done, ///< the modem has let go
        Cancelled,
        Vanished, ///< the port went in the middle of it
    };
    Q_ENUM(End)

    explicit ModemDialogue(platform::SerialPort& port, QObject* parent = nullptr);
    ~ModemDialogue() override; ///< lets go of a line that is still held

    /// Begins; anew where one is under way. False when the port can not be opened.
    bool dial(int port, const QString& number);
    /// After answered(): the modem lets go.
    void hangUp();
    /// Gives the wait up, and lets go. Nothing happens when there is none.
    void cancel();
    bool isRunning() const { return m_state != State::Idle; }

Q_SIGNALS:
    void progressed(int percent);
    void answered(); ///< the number is dialled; the receiver may be picked up
    void said(const QString& line); ///< what else the modem says, such as "NO DIALTONE"
    void ended(telephone::ModemDialogue::End end);

private:
    enum class State { Idle, Waiting, Answered, LettingGo };

    void listen();
    void letGo(End end);
    void finish(End end);

    platform::SerialPort& m_port;
    State m_state = State::Idle;
    End m_end = End::Done;
    QByteArray m_heard;
    int m_call = 0; ///< number of the call that is under way
};

/// What the modem is told; what could end the line of the command is left out.
QByteArray dialCommand(const QString& number);

} // namespace telephone
