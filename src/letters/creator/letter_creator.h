#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/contacts_target.h"
#include "core/handover/letter_screen.h"
#include "core/handover/page_screen.h"
#include "core/handover/phrase_target.h"
#include "core/screen.h"
#include "letters/creator/letter_form.h"
#include "letters/creator/letter_record.h"

#include <QTimer>

class QTabWidget;
class QToolBar;

namespace core {
struct Tool;
class ToolSet;
} // namespace core

namespace editor {
class TextEditor;
}

namespace letters {

class LetterDetails;
class PhrasePanel;
class RecipientPanel;

/// Writes a letter to one or several: from stored texts and phrases, with the address of each reader, shown
/// as it is printed, kept in the record, as files, and through the word processor.
///
/// The whole letter is composed of what is entered and follows it, until a person changes it by hand; from
/// then on only its address follows, and it is composed anew when the person says so.
class LetterCreator : public core::Screen,
                      public core::ContactScreen,
                      public core::ContactsTarget,
                      public core::LetterScreen,
                      public core::PageScreen,
                      public core::PhraseTarget {
    Q_OBJECT

public:
    LetterCreator(core::Context& context, const LetterForm& form, QWidget* parent);
    ~LetterCreator() override;

    void load() override;
    bool isTouched() const override { return m_isDirty; }
    bool mayClose() override;
    bool mayEndProgram() override;
    void bookChanged() override;

    bool showContact(qint64 id) override;
    bool takeContacts(const QList<qint64>& ids, const QString& listName) override;
    bool showLetter(qint64 letterId) override;
    /// The occasion of the letter.
    void openPage(const QString& page) override;
    void insertPhrase(const QString& text) override;

private:
    void layOut();
    QWidget* layOutLetter();
    void layOutTools();
    void addEditMenu(QToolBar* bar);
    void connectControls();
    void perform(const core::Tool& tool);
    void performOnText(QStringView id, editor::TextEditor* text);

    // The letter
    LetterParts parts() const;
    bool isGroup() const;
    formats::RichText head() const;
    MergedFor lettersTo() const;
    void touch();
    void composeSoon();
    void compose();
    void composeAnew();
    void setWhole(const formats::RichText& letter);
    void setHandmade(bool handmade);
    void followWhole();
    bool putHead();
    void followRecipients();
    void chooseCaption(const QString& caption);
    void greetFamily();
    void showParts(const LetterParts& parts);
    void showStored(const StoredLetter& stored);
    void begin();

    // Ways out, in letter_ways_out.cpp
    bool asksToSave();
    void keepDraft();
    void showDraft();
    QList<Recipient> chosenRecipients();
    bool save();
    void preview(int style);
    void writeFiles();
    void writeDatabase();
    void merge(bool withLetterFile);
    void writeLetterFile(const QList<Recipient>& recipients);
    void tellPlace(const QString& text, const QString& file);

    const LetterForm& m_form;
    QString m_kind;
    QString m_caption; ///< of the stored text in the letter
    QString m_stock; ///< that text
    formats::RichText m_head; ///< with which the whole letter begins
    bool m_isHandmade = false;
    bool m_hasOwnHead = false; ///< and its address does not follow either
    bool m_isDirty = false;
    bool m_isSetting = false; ///< texts are being set, by the program
    int m_style = 0;
    QTimer m_composing;
    core::ToolSet* m_tools;
    core::ToolSet* m_wholeTools;
    RecipientPanel* m_recipients;
    PhrasePanel* m_phrases;
    LetterDetails* m_details;
    QTabWidget* m_pages; ///< of the letter
    QWidget* m_handmade; ///< says so
    editor::TextEditor* txtdetails;
    editor::TextEditor* RText;
};

} // namespace letters
