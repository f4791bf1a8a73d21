#pragma once

#include "core/context.h"

#include <QFrame>

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace telephone {

/// Picks the person who is called, from all or from those of a category.
class PersonPicker : public QFrame {
    Q_OBJECT

public:
    explicit PersonPicker(core::Context& context, QWidget* parent = nullptr);

    void open(); ///< reads the people

Q_SIGNALS:
    void picked(qint64 id, const QString& name);
    void cancelled();

private:
    void readPeople();
    void pick();

    core::Context& m_context;
    widgets::FilledCombo* dbccat = nullptr;
    widgets::HeadingGrid* DBCPerson;
};

} // namespace telephone
