#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/page_screen.h"
#include "core/screen.h"
#include "views/contact_pages/note_pages.h"

class QLabel;
class QStackedWidget;
class QTabBar;
class QTextBrowser;
class QUrl;

namespace widgets {
class PictureBox;
}

namespace views {

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

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* layOutHead();
    void readAgain();
    void render();
    QString textOf(const NoteText& text);
    QString sectionHtml(const NoteSection& section, bool isFirst);
    void follow(const QUrl& link);
    void goToContact(const QString& name);

    qint64 m_id = 0;
    NoteView m_view = NoteView::Brief;
    QList<NoteSection> m_sections;
    QList<NoteText> m_links; ///< by the number in a link of the page
    qsizetype m_letters = 0; ///< shown of a text, so that one without measure does not hold up the window
    bool m_wide = false; ///< there is room for two columns

    QTabBar* m_views;
    widgets::PictureBox* m_picture;
    QLabel* lblname;
    QLabel* m_line;
    QLabel* lblCaption; ///< the word of the view, or "Search"
    QTextBrowser* m_page;
    QStackedWidget* m_stack;
};

} // namespace views
