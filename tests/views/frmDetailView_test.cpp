#include "support/person.h"
#include "support/screen_fixture.h"
#include "views/contact_pages/frmDetailView.h"
#include "widgets/fields.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace views;
using widgets::child;

/// The page of one contact for the record selector.
class frmDetailViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void followsAssociates()
    {
        support::ScreenFixture fixture;
        fixture.execute(
            u"insert into cnt_main (Name, First, Asso1, M_BD) values ('Ann', 'Ann', 'R & D', #01-Jan-2000#)"_s);
        fixture.execute(u"insert into cnt_main (Name, First, asso2) values ('R & D', 'Rd', 'Nobody')"_s);
        auto* view = fixture.open<frmDetailView>(u"frmDetailView"_s);
        const auto text
            = [view](const QString& control) { return widgets::textOf(child<QWidget>(view, control)); };

        QVERIFY(!view->showContact(9));
        QVERIFY(view->showContact(1));
        QCOMPARE(text(u"lblname"_s), u"Ann"_s);
        QCOMPARE(text(u"lblage"_s), u"( 24 )"_s);
        QVERIFY(!child<QWidget>(view, u"cmdass2"_s)->isEnabled());
        support::click(view, u"cmdass1"_s);
        QCOMPARE(text(u"dtcmbfname"_s), u"Rd"_s);
        QCOMPARE(text(u"lblage"_s), QString());
        support::click(view, u"cmdass2"_s); // nobody of that name
        QCOMPARE(text(u"lblid"_s), u"2"_s);
        QCOMPARE(fixture.verify(), QString());
    }

    void userFieldsAreCalledAsThePersonSays()
    {
        support::ScreenFixture fixture;
        fixture.execute(u"delete * from cntb_setup"_s);
        fixture.execute(u"insert into cntb_setup (lbluse1) values ('Club')"_s);
        fixture.execute(u"insert into cnt_main (Name) values ('Ann')"_s);
        auto* view = fixture.open<frmDetailView>(u"frmDetailView"_s);
        view->showContact(1);
        QCOMPARE(child<QWidget>(view, u"cmbuser1"_s)->accessibleName(), u"Club"_s);
        fixture.execute(u"update cntb_setup set lbluse1=null"_s);
        view->showContact(1);
        QCOMPARE(child<QWidget>(view, u"cmbuser1"_s)->accessibleName(), u"User 1"_s);
        QCOMPARE(fixture.verify(), QString());
    }
};

QTEST_MAIN(frmDetailViewTest)
#include "frmDetailView_test.moc"
