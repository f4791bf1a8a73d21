#pragma once

#include "core/command_table.h"

#include <QDate>
#include <QWidget>

#include <functional>

class QLabel;

namespace shell {

/// What the frame shows while no screen is open: the day, and the tools that are used most as large buttons.
class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(
        const std::function<bool(const core::Action&)>& isAvailable, QWidget* parent = nullptr);

    void setToday(QDate today);

Q_SIGNALS:
    void toolWanted(const QString& toolId);

private:
    QLabel* m_day;
};

} // namespace shell
