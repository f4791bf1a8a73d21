#pragma once

#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

namespace core {

/// Long work that the person watches and can stop. Short work is done before a dialog could be read, and
/// shows none. No other window takes input meanwhile, so nothing that the work reads can close.
class Progress {
public:
    static constexpr int kTooFew = 200;

    /// @param name object name of the dialog
    Progress(const QString& name, const QString& title, const QString& text, int total, QWidget* over,
        int tooFew = kTooFew);
    ~Progress();

    /// Shows how much is done and lets the window live; false when the person has stopped the work.
    bool advance(int done);
    /// What is being done now, in place of the text so far.
    void say(const QString& text);

private:
    std::unique_ptr<QProgressDialog> m_dialog;
};

} // namespace core
