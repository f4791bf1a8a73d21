#pragma once

#include <QStringList>
#include <QTabBar>

namespace widgets {

/// Tabs for the first letter of a name: "All" and A to Z, or the labels given.
class AlphabetTabs : public QTabBar {
    Q_OBJECT

public:
    explicit AlphabetTabs(QWidget* parent = nullptr);

    static QStringList alphabet(const QString& all); ///< `all`, then A to Z
    void setLabels(const QStringList& labels);
    QString currentLabel() const;
    void setCurrentLabel(const QString& label); ///< without regard to case; an unknown one changes nothing

Q_SIGNALS:
    void labelChosen(const QString& label); ///< also when the current tab is clicked again
};

} // namespace widgets
