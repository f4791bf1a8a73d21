#include <QtTest>
#include <QtWidgets>

#include "editor/text_editor.h"
#include "letters/creator/FrmEmailInsert.h"
#include "letters/creator/FrmLetter.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/theme.h"

using namespace Qt::StringLiterals;

class ScratchTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void pictures()
    {
        for (const auto look : {widgets::Look::Light, widgets::Look::Dark}) {
            widgets::apply(*qApp, look);
            const QString tag = look == widgets::Look::Light ? u"light"_s : u"dark"_s;
            support::ScreenFixture f(support::TestBook::Rows::Sample);
            f.boxes.answerAll(platform::Answer::Yes);
            auto* s = f.open<letters::FrmLetter>(u"FrmLetter"_s);
            f.screens.add<letters::FrmEmailInsert>(u"FrmEmailInsert"_s);
            s->resize(1000, 520);
            const auto shot = [&](const QString& name) {
                QTest::qWait(250);
                s->grab().save(u"/tmp/scratch_creator/%1_%2.png"_s.arg(name, tag));
            };
            shot(u"empty"_s);
            s->takeContacts({1, 2, 3}, u"Friends"_s);
            shot(u"group"_s);
            s->showContact(1);
            auto* sides = s->findChild<QTabWidget*>(u"LetterSides"_s);
            sides->setCurrentIndex(1);
            s->insertPhrase(u"Many happy returns of the day."_s);
            support::type(s, u"DBCop1"_s, u"Thank you for your letter."_s);
            shot(u"phrases"_s);
            sides->setCurrentIndex(2);
            s->findChild<QTabWidget*>(u"LetterPages"_s)->setCurrentIndex(1);
            QTest::keyClicks(s->findChild<QTextEdit*>(u"RText"_s), u"x"_s);
            shot(u"record"_s);
            sides->setCurrentIndex(0);
            support::click(s, u"CmdSelect"_s);
            shot(u"picker"_s);
        }
    }
};

QTEST_MAIN(ScratchTest)
#include "scratch_test.moc"
