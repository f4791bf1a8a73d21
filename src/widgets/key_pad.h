#pragma once

#include <QWidget>

namespace widgets {

/// The twelve keys of a telephone. They leave the focus where it is, so that a form can send each key to the
/// field that has it. The keys are called NAME_1 to NAME_12.
class KeyPad : public QWidget {
    Q_OBJECT

public:
    explicit KeyPad(const QString& keyName, QWidget* parent = nullptr);

Q_SIGNALS:
    void keyPressed(const QString& caption);
};

} // namespace widgets
