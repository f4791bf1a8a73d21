#pragma once

#include "core/context.h"
#include "telephone/dialer/dialer_statements.h"

#include <QFrame>

class QLabel;
class QLineEdit;

namespace widgets {
class HeadingGrid;
}

namespace telephone {

/// The names of the memory lists, and the prefixes that are dialled before a number.
class DialerSetup : public QFrame {
    Q_OBJECT

public:
    explicit DialerSetup(core::Context& context, QWidget* parent = nullptr);

    void read();
    bool isTouched() const; ///< prefixes or a name that are not stored

Q_SIGNALS:
    void listAdded(const QString& name);
    void listsChanged(); ///< one was renamed or deleted
    void listDeleted(const QString& name);
    void finished(); ///< the panel is done with
    void modemsWanted();

private:
    enum class Mode { None, New, Edit }; ///< of the name that is being entered

    void layOut();
    void setMode(Mode mode);
    void startEdit();
    void saveName();
    void addList(const QString& name);
    void renameList(const QString& to);
    void deleteList();
    void readLists(const QString& current);
    void savePrefixes();
    DialPrefixes prefixes() const;

    core::Context& m_context;
    widgets::HeadingGrid* Grid2;
    QLineEdit* Text2 = nullptr;
    QLabel* m_hint = nullptr;
    Mode m_mode = Mode::None;
    QString m_renamed; ///< the list whose name is being changed
    DialPrefixes m_stored;
};

} // namespace telephone
