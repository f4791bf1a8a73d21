#pragma once

#include "letters/creator/letter_form.h"
#include "letters/creator/letter_text.h"

#include <QDate>
#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace jet {
class Database;
}

namespace widgets {
class DateBox;
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace letters {

/// The phrases round the text of a letter: stored text, opening and further lines, closing, ending, and who
/// signs.
class PhrasePanel : public QWidget {
    Q_OBJECT

public:
    explicit PhrasePanel(QWidget* parent = nullptr);

    void load(jet::Database& book);
    void fill(LetterParts& parts) const; ///< all but the body
    void show(const LetterParts& parts);
    void clear();
    QString caption() const; ///< of the stored text
    void setCaption(const QString& caption);

Q_SIGNALS:
    void changed(); ///< by a person
    void captionChosen(const QString& caption);
    void greetingWanted();

private:
    void setSigner(const QString& name);

    QString m_signer; ///< of a new letter
    bool m_isShowing = false;
    QList<widgets::FilledCombo*> m_openings;
    QList<widgets::FilledCombo*> m_closings;
    widgets::FilledCombo* DBCend = nullptr;
    widgets::FilledCombo* DBCUName = nullptr;
    widgets::FilledCombo* cmbcaption = nullptr;
    QLabel* lbluser = nullptr;
};

/// What is kept of a letter beside its text, where it is kept, and what was written to the person before.
class LetterDetails : public QWidget {
    Q_OBJECT

public:
    explicit LetterDetails(const LetterForm& form, QWidget* parent = nullptr);

    void load(jet::Database& book, const QString& datePattern, const QDate& today);
    struct Values {
        QDate date = {};
        QString type = {};
        QString category = {};
        QString serialNumber = {};
        QString note = {};
    };
    Values values() const;
    void show(const Values& values);
    bool hasBadDate() const; ///< and asks to mend it
    QString folder() const;
    void setFolder(const QString& folder);
    void showHistory(jet::Database& book, const QString& person);

Q_SIGNALS:
    void changed(); ///< by a person
    void folderWanted();
    void filesWanted();
    void databaseWanted();
    void letterChosen(qint64 id);

private:
    widgets::DateBox* Ssdate1 = nullptr;
    widgets::FilledCombo* DBCgrp = nullptr;
    widgets::FilledCombo* DBCmlcat = nullptr;
    QLineEdit* txtseno = nullptr;
    QLineEdit* Folder = nullptr;
    QPlainTextEdit* m_note = nullptr;
    widgets::HeadingGrid* m_history;
    bool m_isShowing = false; ///< the fields are being filled
};

} // namespace letters
