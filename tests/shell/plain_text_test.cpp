#include <QtTest>
#include <QtWidgets>

#include "anniversaries/register_anniversaries.h"
#include "core/handover/contact_screen.h"
#include "core/setup/register_setup.h"
#include "entry/register_entry.h"
#include "letters/register_letters.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "telephone/register_telephone.h"
#include "transfer/register_transfer.h"
#include "views/register_views.h"
#include "widgets/theme.h"

using namespace Qt::StringLiterals;

namespace {

const QString Markup = u"<b>x</b>"_s;

/// A contact with markup in each column that has room for it.
void addContact(support::ScreenFixture& fixture)
{
    QStringList columns;
    for (const jet::SchemaColumn& column : fixture.schema.table(u"cnt_main")->columns) {
        const bool isText = column.type == jet::ColumnType::Text || column.type == jet::ColumnType::Memo;
        if (isText && fixture.schema.textSize(u"cnt_main", column.name) >= Markup.size())
            columns += u'[' + column.name + u']';
    }
    const QStringList values(columns.size(), u'\'' + Markup + u'\'');
    fixture.execute(u"insert into cnt_main (%1) values (%2)"_s.arg(columns.join(u','), values.join(u',')));
}

} // namespace

/// Stored text is text: whatever a contact holds, no label and no tool tip of any screen takes it for markup.
class PlainTextTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyScreen()
    {
        widgets::apply(*qApp, widgets::Look::Light);
        support::ScreenFixture fixture;
        addContact(fixture);
        fixture.shared.selectedContactId = 1;
        fixture.shared.selectedContactName = Markup;
        anniversaries::registerAnniversaries(fixture.screens);
        telephone::registerTelephone(fixture.screens);
        letters::registerLetters(fixture.screens);
        transfer::registerTransfer(fixture.screens);
        views::registerViews(fixture.screens);
        entry::registerEntry(fixture.screens);
        setup::registerSetup(fixture.screens);
        for (const QString& name : fixture.screens.names()) {
            core::Screen* screen = fixture.screens.load(name);
            fixture.screens.show(name);
            if (auto* ofContacts = dynamic_cast<core::ContactScreen*>(screen))
                ofContacts->showContact(1);
            for (auto* tree : screen->findChildren<QTreeView*>())
                tree->expandAll();
            for (auto* pages : screen->findChildren<QTabWidget*>()) {
                for (int page = 0; page < pages->count(); ++page)
                    pages->setCurrentIndex(page);
            }
            QCoreApplication::processEvents();
            lookAtLabels(name);
            lookAtTips(screen);
            // A letter to several has marks in place of a contact.
            for (const auto* page : screen->findChildren<QTextEdit*>())
                QVERIFY2(page->toPlainText().isEmpty() || page->toPlainText().contains(Markup)
                        || page->toPlainText().startsWith(u"<<Person Name>>"),
                    qPrintable(name));
        }
        QVERIFY2(m_labels > 20 && m_tips > 5, qPrintable(u"%1 labels, %2 tips"_s.arg(m_labels).arg(m_tips)));
    }

    // A screen with a button for help shows the text of its own code.
    void helpIsTheScreensOwn()
    {
        const QHash<QString, QString> codes{{u"FormSearch"_s, u"CON0024"_s}, {u"frmFilter"_s, u"C0014"_s},
            {u"frmTabFilter"_s, u"CON0069"_s}, {u"FrmDuplicator"_s, u"CON0044"_s},
            {u"FormMain"_s, u"CON0018"_s}, {u"FormMain1"_s, u"CON0019"_s},
            {u"FormMainBusiness"_s, u"CON0020"_s}, {u"TurboAdd"_s, u"CON0076"_s},
            {u"FrmOthers"_s, u"CON0062"_s}, {u"FrmvCard"_s, u"CON0071"_s}, {u"FrmVCF"_s, u"CON0073"_s},
            {u"FormAviewbday"_s, u"CON002"_s}, {u"FormZodiacYr"_s, u"CON0026"_s},
            {u"frmzodiac"_s, u"CON0075"_s}, {u"frmbday"_s, u"CON0032"_s}, {u"FrmPhReplacer"_s, u"CON0064"_s},
            {u"FrmPhSearch"_s, u"CON0065"_s}, {u"FrmDialer"_s, u"CON0043"_s}, {u"Form1"_s, u"CON001"_s},
            {u"FormMailList"_s, u"CON0017"_s}, {u"FrmLetter"_s, u"CON004"_s},
            {u"FrmBusinessLetter"_s, u"CON004"_s}, {u"FrmGrpLetter"_s, u"CON004"_s},
            {u"FormLtrSetUp"_s, u"CON009"_s}};
        support::ScreenFixture fixture;
        for (const QString& code : codes)
            fixture.execute(u"insert into ov_tooltip (Code,Tooltip) values ('%1','Help of %1.')"_s.arg(code));
        anniversaries::registerAnniversaries(fixture.screens);
        telephone::registerTelephone(fixture.screens);
        letters::registerLetters(fixture.screens);
        transfer::registerTransfer(fixture.screens);
        views::registerViews(fixture.screens);
        entry::registerEntry(fixture.screens);
        setup::registerSetup(fixture.screens);
        int asked = 0;
        for (const QString& name : fixture.screens.names()) {
            core::Screen* screen = fixture.screens.load(name);
            fixture.screens.show(name);
            if (screen->findChild<QWidget*>(u"CmdHelp"_s)) {
                support::click(screen, u"CmdHelp"_s);
                QVERIFY2(support::isTold(u"Help of "_s + codes.value(name, u"nothing"_s) + u'.'),
                    qPrintable(name));
                ++asked;
            }
            fixture.screens.unload(name);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        QCOMPARE(asked, int(codes.size()));
        QCOMPARE(fixture.verify(), QString());
    }

private:
    void lookAtLabels(const QString& screen)
    {
        for (QWidget* widget : QApplication::allWidgets()) {
            const auto* label = qobject_cast<QLabel*>(widget);
            if (!label || !label->text().contains(Markup))
                continue;
            ++m_labels;
            QVERIFY2(
                label->textFormat() == Qt::PlainText, qPrintable(screen + u": "_s + label->objectName()));
        }
    }

    void lookAtTips(QWidget* screen)
    {
        for (QWidget* widget : screen->findChildren<QWidget*>())
            lookAtTip(widget->toolTip(), widget);
        for (auto* view : screen->findChildren<QAbstractItemView*>()) {
            QModelIndexList open{QModelIndex()};
            while (!open.isEmpty()) {
                const QModelIndex parent = open.takeFirst();
                for (int row = 0; view->model() && row < std::min(20, view->model()->rowCount(parent));
                     ++row) {
                    open += view->model()->index(row, 0, parent);
                    lookAtTip(open.constLast().data(Qt::ToolTipRole).toString(), view);
                }
            }
        }
    }

    void lookAtTip(const QString& tip, QWidget* owner)
    {
        if (!tip.contains(Markup))
            return;
        ++m_tips;
        QToolTip::showText({}, tip, owner);
        lookAtLabels(owner->objectName());
        QToolTip::hideText();
    }

    int m_labels = 0;
    int m_tips = 0;
};

QTEST_MAIN(PlainTextTest)
#include "plain_text_test.moc"
