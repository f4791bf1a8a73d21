#pragma once

#include "core/handover/contact_screen.h"
#include "core/screen.h"
#include "platform/scanner.h"
#include "widgets/field_set.h"

#include <QTemporaryDir>

#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace letters {

class ContactChoice;
class PaperPages;

/// What two screens for letters that were not written here have different.
struct PaperKind {
    const char* title;
    QStringView secondType; ///< `type2` of the rows
    bool scans; ///< pages come from a scanner too, and several are one letter
    QStringView filter; ///< of the dialog that chooses a file
};

/// A letter that came on paper or as a file: who, when and what kind, its pages, and its row in the record.
/// The file goes to the person's folder of letters.
class PaperLetter : public core::Screen, public core::ContactScreen {
    Q_OBJECT

public:
    PaperLetter(core::Context& context, const PaperKind& kind, QWidget* parent);
    ~PaperLetter() override;

    void load() override;
    bool isTouched() const override;
    bool showContact(qint64 id) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void layOutScanner(QWidget* page);
    void fillVocabularies();
    void blank();

    void findScanners();
    void scan();
    void scanned(const QString& file, const QString& cause);
    void chooseFiles();
    void addFile(const QString& file);

    void save();
    bool store(qint64 person, const QString& file, bool isOurs);

    const PaperKind& m_kind;
    widgets::FieldSet m_fields;
    ContactChoice* m_person;
    PaperPages* m_pages;
    QComboBox* m_scanners = nullptr;
    QComboBox* m_resolution = nullptr;
    QCheckBox* m_color = nullptr;
    QPushButton* m_scan = nullptr;
    QLabel* m_scanState = nullptr;
    QList<platform::ScannerDevice> m_devices;
    std::unique_ptr<QTemporaryDir> m_scans; ///< pages of this letter
    int m_scanCount = 0;
    bool m_isScanning = false;
};

/// A letter from the scanner, or from pictures that are there already.
class frmScan : public PaperLetter {
    Q_OBJECT

public:
    explicit frmScan(core::Context& context, QWidget* parent = nullptr);
};

/// A letter that is a file already: a document of a word processor, a PDF, a picture.
class frmgmail1 : public PaperLetter {
    Q_OBJECT

public:
    explicit frmgmail1(core::Context& context, QWidget* parent = nullptr);
};

} // namespace letters
