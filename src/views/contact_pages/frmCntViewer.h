#pragma once

#include "core/handover/contact_screen.h"
#include "core/screen.h"
#include "jet/database.h"

class QLabel;
class QPlainTextEdit;
class QStackedWidget;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace widgets {
class HeadingGrid;
}

namespace views {

/// All that is linked to one contact, list by list. A list is read when it is looked at; how many rows the
/// others have is counted one after the other while the window stays alive.
class frmCntViewer : public core::Screen, public core::ContactScreen {
    Q_OBJECT

public:
    explicit frmCntViewer(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    bool showContact(qint64 id) override;

protected:
    void showEvent(QShowEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void layOut();
    QWidget* layOutHead();
    QWidget* layOutRows();
    void startCounting();
    bool countOn(QTreeWidgetItem* item);
    void showCount(QTreeWidgetItem* item, int count);
    void showList();
    void showRelatives();
    void showText();
    void openRow(int row);
    void showDates();

    jet::Connection m_connection;
    qint64 m_id = 0;
    qint64 m_offered = 0; ///< the contact last chosen elsewhere when this was shown
    int m_timer = 0;
    int m_counted = 0; ///< lists counted so far
    qint64 m_scannedTo = 0; ///< the contact up to which the list being counted was counted
    int m_found = 0; ///< and how many rows were found

    QStackedWidget* m_pages = nullptr;
    QLabel* lblname;
    QLabel* m_line;
    QTreeWidget* m_lists;
    widgets::HeadingGrid* m_rows;
    QPlainTextEdit* m_text;
    QToolButton* m_choose;
};

} // namespace views
