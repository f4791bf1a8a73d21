#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/page_screen.h"
#include "core/screen.h"
#include "views/contact_pages/note_pages.h"

class QLabel;
class QStackedWidget;
class QTabBar;

namespace widgets {
class PictureBox;
}

namespace views {

class ContactPage;

/// One contact as a page to read, in one of four views. What is empty is not there. Stands alone, or beside
/// the list of the record selector, which then chooses the view.
class frmNoteView : public core::Screen, public core::ContactScreen, public core::PageScreen {
    Q_OBJECT

public:
    explicit frmNoteView(core::Context& context, QWidget* parent = nullptr);

    void load() override { }
    bool showContact(qint64 id) override;
    /// One of the views, or "Search" for the contact that a search has found: everything, under that word.
    void openPage(const QString& page) override;
    void setViewTabsVisible(bool visible);
    qint64 shownContact() const { return m_id; }

Q_SIGNALS:
    void associateShown(qint64 id); ///< the page went to another contact by itself

private:
    QWidget* layOutHead();
    void readAgain();
    void goToContact(const QString& name);

    qint64 m_id = 0;
    NoteView m_view = NoteView::Brief;

    QTabBar* m_views;
    widgets::PictureBox* m_picture;
    QLabel* lblname;
    QLabel* m_line;
    QLabel* lblCaption; ///< the word of the view, or "Search"
    ContactPage* m_page;
    QStackedWidget* m_stack;
};

} // namespace views
