#pragma once

#include "core/context.h"
#include "views/contact_pages/note_pages.h"

#include <QTextBrowser>

namespace views {

/// What a contact says, as flat text to read: only what is filled, in one column or, where there is room, in
/// two. Numbers and addresses are links, which this page follows: it calls, writes a mail, opens a page.
class ContactPage : public QTextBrowser {
    Q_OBJECT

public:
    explicit ContactPage(core::Context& context, QWidget* parent = nullptr);

    void showContact(qint64 id, const QString& name, const QList<NoteSection>& sections);
    /// Leads where the text leads, for the contact that is shown.
    void follow(const NoteText& text);

Q_SIGNALS:
    void contactChosen(const QString& name); ///< a link to another contact

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void render();
    QString html(bool inTwoColumns);
    QString sectionHtml(const NoteSection& section, bool isFirst);
    QString htmlOf(const NoteText& text);
    void followLink(const QUrl& link);
    void call(const QString& number);

    core::Context& m_context;
    qint64 m_id = 0;
    QString m_name;
    QList<NoteSection> m_sections;
    QList<NoteText> m_links; ///< by the number in a link of the page
    qsizetype m_letters = 0; ///< shown of a text, so that one without measure does not hold up the window
    bool m_wide = false; ///< there is room for two columns
};

} // namespace views
