#pragma once

#include "core/context.h"

#include <QDate>
#include <QFrame>

#include <optional>

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
    /// Another call is the one to be recorded; what was entered stays.
    void setCall(const DialledCall& call);
    /// To mend one that was recorded; false when it is not there any more.
    bool edit(qint64 callId);
    bool isTouched() const;

Q_SIGNALS:
    void saved(const QString& name);
    void cancelled();

private:
    struct Entered {
        QString purpose;
        QString response;
        bool isLater = false;
        QString next;
        friend bool operator==(const Entered&, const Entered&) = default;
    };
    Entered entered() const;
    void showValues(const Entered& values, const std::optional<QDate>& next);
    void save();
    bool record(const QString& stepName);
    void followCheck();

    core::Context& m_context;
    DialledCall m_call;
    qint64 m_editedId = 0; ///< 0 for a new one
    Entered m_shown;
    widgets::FilledCombo* DBPurpose = nullptr;
    widgets::FilledCombo* DBResponse = nullptr;
    QCheckBox* Check1 = nullptr;
    widgets::DateBox* ssdtNextCall = nullptr;
    QLabel* m_what = nullptr;
};

} // namespace telephone
