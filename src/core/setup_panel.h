#pragma once

#include "core/context.h"

#include <QWidget>

class QLabel;

namespace core {

/// One tab of the set-up, or a piece of one. It is read when it is looked at.
class SetupPanel : public QWidget {
    Q_OBJECT

public:
    explicit SetupPanel(Context& context, QWidget* parent = nullptr);

    /// Reads what the panel shows. Called each time when the tab comes in sight.
    virtual void refresh() = 0;
    /// Whether something is typed here that is not saved.
    virtual bool isTouched() const { return false; }

Q_SIGNALS:
    /// What other screens offer or show is no longer what it was.
    void vocabulariesChanged();
    void contactsChanged();

protected:
    Context& context() const { return m_context; }
    jet::Database& data() const { return m_context.data; }
    void playSound(QStringView name) const; ///< "save", "Cancel", "Del"
    void inform(const QString& text) const;
    /// Asks whether what was typed and not saved may go.
    bool mayDiscard() const;
    /// A hint about a write that failed, with the reason where the file gave one.
    QString notStored(const QString& hint) const;

private:
    Context& m_context;
};

/// A line of quiet text for what a person has to know but not to confirm; it keeps its room when it is empty.
QLabel* makeHint(const QString& name);

} // namespace core
