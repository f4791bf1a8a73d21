#pragma once

#include "views/contact_pages/note_pages.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QToolButton;

namespace widgets {
class PictureBox;
}

namespace views {

/// The head of the full view: picture, name, a line of what matters most, the first number and mail
/// address and the associates as links, and the buttons that write to or call the contact.
class FullViewHeader : public QWidget {
    Q_OBJECT

public:
    explicit FullViewHeader(QWidget* parent = nullptr);

    /// A local path; empty for none.
    void showPicture(const QString& path);
    /// The name of somebody who is not in the book, in place of the button; empty brings the button back.
    void showPlainName(const QString& name);
    /// To be called after the texts were set: company and category, and which associates there are.
    void tidy(const QStringList& facts);
    /// The first ways to reach the contact, those that there are.
    void showReach(const NoteText& mobile, const NoteText& mail);

    widgets::PictureBox* ix1;
    QPushButton* SSCommand8;
    QPushButton* LblAsso1;
    QPushButton* LblAsso2;
    QToolButton* CmdTel;
    QToolButton* CmdAdd;
    QToolButton* CmdEmail;

Q_SIGNALS:
    void reachChosen(const NoteText& reach);

private:
    struct Reach {
        QPushButton* button;
        NoteText text;
    };
    Reach m_mobile;
    Reach m_mail;
    QLabel* m_plainName;
    QLabel* m_facts;
    QLabel* m_associates;
};

} // namespace views
