#include <QtTest>
#include <QtWidgets>

#include "anniversaries/register_anniversaries.h"
#include "core/handover/contact_screen.h"
#include "core/setup/register_setup.h"
#include "core/shell/MDIForm1.h"
#include "core/shell/register_shell.h"
#include "entry/register_entry.h"
#include "letters/register_letters.h"
#include "output/register_output.h"
#include "reports/register_reports.h"
#include "support/screen_fixture.h"
#include "telephone/register_telephone.h"
#include "transfer/register_transfer.h"
#include "views/register_views.h"
#include "widgets/theme.h"

using namespace Qt::StringLiterals;

/// Every screen in the frame of a small display: nothing is cut off, overflows, or scrolls sideways.
class RoomTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyScreen();

private:
    void look(const QString& where, const QWidget* screen);

    QStringList m_found;
    int m_labels = 0;
};

void RoomTest::look(const QString& where, const QWidget* screen)
{
    for (int round = 0; round < 3; ++round) // what a layout sets off sets off another one
        QCoreApplication::processEvents();
    const auto note = [&](const QWidget* widget, const QString& text) {
        m_found << where + u": "_s + widget->objectName() + u' ' + text;
    };
    for (QWidget* widget : screen->findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->visibleRegion().isEmpty())
            continue;
        if (widget->objectName() == u"qt_toolbar_ext_button")
            note(widget->parentWidget(), u"overflows"_s);
        if (const auto* tabs = qobject_cast<QTabBar*>(widget);
            tabs && tabs->count() > 0 && tabs->tabRect(tabs->count() - 1).right() > tabs->width())
            note(tabs, u"has tabs out of sight"_s);
        // A grid may be wider than its place, a page or a tree may not.
        const auto* area = qobject_cast<QAbstractScrollArea*>(widget);
        if (area && !qobject_cast<const QTableView*>(area) && area->horizontalScrollBar()->isVisible())
            note(area, u"scrolls sideways"_s);
        const auto* label = qobject_cast<QLabel*>(widget);
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        const QString text = label ? label->text() : button ? button->text() : QString();
        if (text.isEmpty() || qobject_cast<const QToolButton*>(button))
            continue;
        ++m_labels;
        const bool elides
            = label && (label->wordWrap() || label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored);
        const int needed = widget->fontMetrics().size(Qt::TextShowMnemonic, text).width();
        if (!elides && widget->width() < needed + (button && !button->icon().isNull() ? 22 : 0))
            note(widget, u"cuts "_s + text);
    }
}

void RoomTest::everyScreen()
{
    widgets::apply(*qApp, widgets::Look::Light);
    support::ScreenFixture f(support::TestBook::Rows::Sample);
    shell::MDIForm1 window;
    core::Screens registry;
    core::Context all{f.book.data(), f.book.data(), f.schema, f.shared, registry, window, f.context.services};
    registry.setContext(all);
    anniversaries::registerAnniversaries(registry);
    telephone::registerTelephone(registry);
    letters::registerLetters(registry);
    transfer::registerTransfer(registry);
    views::registerViews(registry);
    entry::registerEntry(registry);
    output::registerOutput(registry);
    reports::registerReports(registry);
    setup::registerSetup(registry);
    shell::registerShell(registry);
    window.build(all);
    window.loadFrame();
    window.show();
    window.resize(1024, 700);
    f.shared.selectedContactId = 1;
    look(u"start"_s, &window);
    for (const QString& form : registry.names()) {
        QVERIFY(registry.show(form));
        auto* screen = registry.find(form);
        if (auto* ofContacts = dynamic_cast<core::ContactScreen*>(screen))
            ofContacts->showContact(1);
        look(form, &window);
        // Its second page is for what was ticked.
        if (form == u"FrmVCF")
            f.boxes.expect(u"Record not selected"_s);
        for (auto* tabs : screen->findChildren<QTabBar*>()) {
            for (int page = 0; page < tabs->count() && tabs->count() < 12; ++page) {
                tabs->setCurrentIndex(page);
                look(form + u'/' + tabs->tabText(page), &window);
            }
        }
        registry.unload(form);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QVERIFY(window.width() == 1024 && window.height() == 700);
    QVERIFY2(m_found.isEmpty(), qPrintable(m_found.join(u"; "_s)));
    QVERIFY(m_labels > 500);
    registry.unloadAll();
}

QTEST_MAIN(RoomTest)
#include "room_test.moc"
