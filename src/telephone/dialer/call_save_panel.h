#pragma once

#include "core/context.h"

#include <QFrame>

class QCheckBox;
class QLabel;

namespace widgets {
class DateBox;
class FilledCombo;
} // namespace widgets

namespace telephone {

/// The call that is to be recorded.
struct DialledCall {
    qint64 person = 0; ///< 0 for a number of nobody in the book
    QString number;
    QString name;
};

/// Records a call with its purpose and response, and when to call next.
class CallSavePanel : public QFrame {
    Q_OBJECT

public:
    explicit CallSavePanel(core::Context& context, QWidget* parent = nullptr);

    void open(const DialledCall& call);
    bool isTouched() const;

Q_SIGNALS:
    void saved(const QString& name);
    void cancelled();

private:
    void save();
    void followCheck();

    core::Context& m_context;
    DialledCall m_call;
    widgets::FilledCombo* DBPurpose = nullptr;
    widgets::FilledCombo* DBResponse = nullptr;
    QCheckBox* Check1 = nullptr;
    widgets::DateBox* ssdtNextCall = nullptr;
    QLabel* m_what = nullptr;
};

} // namespace telephone
