#pragma once

#include "core/setup_panel.h"

#include <QStringList>

class QComboBox;
class QLabel;
class QLineEdit;

namespace widgets {
class FormKit;
}

namespace letters {

/// A few lines that are stored together.
class LinesPanel : public core::SetupPanel {
    Q_OBJECT

public:
    explicit LinesPanel(core::Context& context, QWidget* parent = nullptr);

    bool isTouched() const override { return typed() != m_shown; }

protected:
    void addLines(widgets::FormKit& form, const QStringList& names, const QStringList& labels,
        const QStringList& columns);
    void addHint(widgets::FormKit& form, const QString& name);
    QList<QLineEdit*> lines() const { return m_lines; }
    void show(const QStringList& texts);
    QStringList typed() const;
    void tell(const QString& hint);
    /// After the lines were stored, or were not.
    void tellStored(bool isStored);

private:
    QList<QLineEdit*> m_lines;
    QStringList m_shown;
    QLabel* m_hint = nullptr;
};

/// The custom signature below mails.
class SignaturePanel : public LinesPanel {
    Q_OBJECT

public:
    explicit SignaturePanel(core::Context& context, QWidget* parent = nullptr);

    void refresh() override;

private:
    void save();
};

/// The labels that the user fields have for the members of a group.
class UserFieldsPanel : public LinesPanel {
    Q_OBJECT

public:
    explicit UserFieldsPanel(core::Context& context, QWidget* parent = nullptr);

    void refresh() override;

private:
    QString group() const;
    void readGroup();
    void chooseGroup();
    void edit();
    void save();

    QComboBox* PGroup;
    QString m_group; ///< whose labels are shown
};

} // namespace letters
