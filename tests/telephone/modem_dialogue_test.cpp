#include <QtTest>

#include <fcntl.h>
#include <pty.h>
#include <unistd.h>

#include "platform/device_port.h"
#include "telephone/dialer/modem_dialogue.h"

using namespace Qt::StringLiterals;
using telephone::ModemDialogue;
using End = ModemDialogue::End;

/// Calls over a pseudo terminal, whose other end is the modem.
class ModemDialogueTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        char name[256] = {};
        termios plain = {};
        ::cfmakeraw(&plain); // no echo
        QCOMPARE(::openpty(&m_modem, &m_line, name, &plain, nullptr), 0);
        ::fcntl(m_modem, F_SETFL, O_NONBLOCK);
        m_folder = std::make_unique<QTemporaryDir>();
        m_devices = std::make_unique<platform::SerialDeviceFile>(m_folder->filePath(u"modem.ini"_s));
        QVERIFY(m_devices->setDevice(2, QString::fromLocal8Bit(name)));
        m_port = std::make_unique<platform::DevicePort>(*m_devices);
        m_call = std::make_unique<ModemDialogue>(*m_port);
        connect(m_call.get(), &ModemDialogue::answered, this, [this] { ++m_answers; });
        connect(m_call.get(), &ModemDialogue::ended, this, [this](End end) { m_ends << end; });
        connect(m_call.get(), &ModemDialogue::said, this, [this](const QString& line) { m_said << line; });
        m_answers = 0;
        m_ends.clear();
        m_said.clear();
    }
    void cleanup()
    {
        m_call.reset();
        m_port.reset();
        for (int* file : {&m_modem, &m_line})
            hangUp(*file);
    }

    void fromDialToHangUp()
    {
        for (int time = 0; time < 2; ++time) { // a port that was let go can be used again
            say("RING\r\n"); // before the call, so nothing of it
            dial("022-55;\r", "ATDT022-55;\r");
            say("noise \xff"
                "AO\r\nNO CARRIER\r\n");
            QTRY_COMPARE(m_said, QStringList{u"NO CARRIER"_s});
            say("\r\nO");
            QTest::qWait(20);
            QCOMPARE(m_answers, time);
            say("K\r\n");
            QTRY_COMPARE(m_answers, time + 1);
            m_call->hangUp();
            QTRY_COMPARE(m_ends.size(), time + 1);
            QCOMPARE(m_ends.last(), End::Done);
            QCOMPARE(heard(), "ATH\r");
            QVERIFY(!m_port->PortOpen());
            m_said.clear();
        }
    }

    // No answer ever comes, and a modem that babbles takes no memory.
    void cancelled()
    {
        dial("1", "ATDT1;\r");
        for (int i = 0; i < 20; ++i) {
            say(QByteArray(200, 'x'));
            QTest::qWait(1);
        }
        QVERIFY(m_ends.isEmpty());
        m_call->cancel();
        QTRY_COMPARE(m_ends, QList<End>{End::Cancelled});
        QCOMPARE(heard(), "ATH\r");
        m_call->cancel(); // a second time, and not for the next call
        dial("2", "ATDT2;\r");
        QVERIFY(m_call->isRunning());
        m_call.reset(); // the screen closes
        QCOMPARE(heard(), "ATH\r");
    }

    void vanished()
    {
        dial("1", "ATDT1;\r");
        hangUp(m_line);
        hangUp(m_modem);
        QTRY_COMPARE(m_ends, QList<End>{End::Vanished});
        QVERIFY(!m_port->PortOpen());
        QVERIFY(!m_call->dial(2, u"1"_s));
        QVERIFY2(m_port->fault().contains(u"is not there now"), qPrintable(m_port->fault()));
        QVERIFY(!m_call->dial(3, u"1"_s)); // nobody said what port 3 is
        QVERIFY(!m_call->isRunning());
    }

private:
    void dial(const char* number, const QByteArray& command)
    {
        QVERIFY2(m_call->dial(2, QString::fromLatin1(number)), qPrintable(m_port->fault()));
        QCOMPARE(heard(), command);
    }
    void say(const QByteArray& bytes) const
    {
        QCOMPARE(::write(m_modem, bytes.data(), size_t(bytes.size())), bytes.size());
    }
    QByteArray heard() const
    {
        char bytes[256];
        ssize_t count = -1;
        for (int i = 0; i < 100 && count < 0; ++i) {
            QTest::qWait(5);
            count = ::read(m_modem, bytes, sizeof bytes);
        }
        return QByteArray(bytes, qMax(ssize_t(0), count));
    }
    static void hangUp(int& file)
    {
        if (file >= 0)
            ::close(file);
        file = -1;
    }

    int m_modem = -1;
    int m_line = -1; ///< kept open, else the modem hears nothing before the program has opened it
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<platform::SerialDeviceFile> m_devices;
    std::unique_ptr<platform::DevicePort> m_port;
    std::unique_ptr<ModemDialogue> m_call;
    int m_answers = 0;
    QList<End> m_ends;
    QStringList m_said;
};

QTEST_GUILESS_MAIN(ModemDialogueTest)
#include "modem_dialogue_test.moc"
