#pragma once

#include "core/context.h"

#include <QWidget>

namespace core {

/// The base of every screen. A screen is made and loaded by the registry, which gives it the form's name as
/// object name; callers may fill fields between load and show. It lives in the frame as a tab, or in a
/// dialog, and does not care which.
class Screen : public QWidget {
    Q_OBJECT

public:
    Screen(Context& context, QWidget* parent = nullptr);
    ~Screen() override;

    /// Fills lists and fields; called once, before the screen is shown.
    virtual void load() = 0;
    /// Called when the screen is about to close; false keeps it open.
    virtual bool mayClose() { return true; }

Q_SIGNALS:
    void closeRequested();

protected:
    Context& context() const { return m_context; }
    SharedState& shared() const { return m_context.shared; }
    void playSound(QStringView path) const;
    void inform(const QString& text) const; ///< a notice, with the information icon
    void warn(const QString& text) const; ///< with the exclamation mark
    /// Shows the help text of a code such as "CON0018" beside the control that was asked.
    void showHelp(const QString& code, QWidget* beside) const;

private:
    Context& m_context;
};

} // namespace core
