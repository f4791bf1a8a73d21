#pragma once

#include <QPlainTextEdit>

namespace views {

/// A box to read several lines from, each with a label of its own in the margin. The label keeps to its
/// line, wherever that one wraps or scrolls to.
class LabelledLines : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit LabelledLines(const QStringList& labels, QWidget* parent = nullptr);

    void showLabels(bool shown);
    /// Where the label of a line is painted; empty where there is none.
    QRect labelRect(int line) const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void settleMargin();
    void paintLabels();

    QStringList m_labels;
    bool m_labelled = true;
    QWidget* m_margin;
};

} // namespace views
