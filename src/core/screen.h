#pragma once

#include "core/context.h"

#include <QWidget>

namespace core {

/// The base of every screen. A screen is made and loaded by the registry, which gives it the form's name as
/// object name; callers may fill fields between load and show. It lives in the frame as a tab, or in a
/// dialog, and does not care which.
///
/// Title and position belong to the screen: the frame shows those of the screen in front. What was typed and
/// not saved is known here, so that every way out asks once, and asks alike.
class Screen : public QWidget {
    Q_OBJECT

public:
    Screen(Context& context, QWidget* parent = nullptr);
    ~Screen() override;

    /// Fills lists and fields; called once, before the screen is shown.
    virtual void load() = 0;
    /// Whether something was typed that is not saved.
    virtual bool isTouched() const { return false; }
    /// Called when the screen is about to close; false keeps it open. Asks when something was typed.
    virtual bool mayClose();
    /// The same before the program ends.
    virtual bool mayEndProgram() { return mayClose(); }
    /// Another part of the program, or another program, has changed the book: reads anew what is shown, and
    /// keeps what is being entered and, where it can, the contact that is shown. A screen out of sight is
    /// told when it is seen again.
    virtual void bookChanged() { }
    /// The set-up has changed what lists and forms offer. Keeps what is being entered; the lists of fields
    /// are read again when they drop down.
    virtual void vocabulariesChanged();

    /// What the frame writes above the screen while it is in front; the screen's own title where none is set.
    QString frameTitle() const;
    /// The title that a command gives to a screen that has none of its own.
    void offerFrameTitle(const QString& title);
    /// The status pane while the screen is in front, such as "3 of 120".
    const QString& position() const { return m_position; }
    /// The screen shows the book as it is now, so it need not be told of changes up to here.
    void noteBookRead();

Q_SIGNALS:
    void closeRequested();
    void headChanged(); ///< frame title or position

protected:
    Context& context() const { return m_context; }
    SharedState& shared() const { return m_context.shared; }
    void setFrameTitle(const QString& title);
    void setPosition(const QString& position);
    /// Says that a contact was saved, with the way to take it back.
    void tellSaved(const QString& name) const;
    /// Asks whether what was typed may go; true without a question when nothing was.
    bool mayDiscard() const;
    void playSound(QStringView path) const;
    void inform(const QString& text) const; ///< a notice, with the information icon
    void warn(const QString& text) const; ///< with the exclamation mark
    /// Shows the help text of a code such as "CON0018" beside the control that was asked.
    void showHelp(const QString& code, QWidget* beside) const;

    void showEvent(QShowEvent* event) override;

private:
    Context& m_context;
    QString m_frameTitle;
    QString m_position;
    QString m_bookRead; ///< the state of the book that is shown
};

} // namespace core
