#pragma once

#include <QTemporaryDir>

#include "core/context.h"
#include "core/frame.h"
#include "core/handover/contact_screen.h"
#include "core/handover/filter_target.h"
#include "core/handover/mail_composer.h"
#include "core/handover/page_screen.h"
#include "core/screens.h"
#include "platform/folder_drive.h"
#include "support/recording_services.h"
#include "support/scripted_boxes.h"
#include "support/test_book.h"

namespace support {

/// A frame without windows, which writes down what screens ask of it. Screens placed in it are shown as
/// windows of their own.
class RecordingFrame final : public core::Frame {
public:
    void place(core::Screen* screen, core::Shown shown) override;
    void bringForward(core::Screen* screen) override;
    void showNotice(const QString& text, const QString& actionText, std::function<void()> action) override;
    bool perform(const core::Action& action) override;
    bool canPerform(const core::Action& action) const override;

    QStringList placed; ///< form names, with " modally" behind a dialog
    QStringList broughtForward;
    QStringList notices; ///< with " [Undo]" and alike behind one that offers something
    std::function<void()> noticeAction;
    std::vector<core::Action> performed;
    bool able = true; ///< the answer of perform() and canPerform()
};

/// Stands for any screen that another one hands over to, by whatever interface.
class TargetScreen final : public core::Screen,
                           public core::ContactScreen,
                           public core::FilterTarget,
                           public core::MailComposer,
                           public core::PageScreen {
    Q_OBJECT

public:
    using Screen::Screen;

    void load() override { ++loads; }
    bool showContact(qint64 id) override;
    void applyFilter(const QString& whereClause) override { filters << whereClause; }
    void AddRecipient(qint64 contactId) override { recipients << contactId; }
    void openPage(const QString& page) override { pages << page; }

    int loads = 0;
    QList<qint64> contacts; ///< that it was asked to show
    QList<qint64> recipients;
    QStringList filters;
    QStringList pages;
    bool knowsContacts = true; ///< the answer of showContact()
};

/// Everything a screen needs, with a book of its own and nothing of this computer behind it. Both databases
/// are the one book. verify() at the end of each test names boxes and failures that came unasked.
class ScreenFixture {
public:
    explicit ScreenFixture(TestBook::Rows rows = TestBook::Rows::None);
    ~ScreenFixture();

    /// Registers a recording screen under a form name, for a hand-over to find.
    void addTarget(const QString& form);
    /// The recording screen of that name, if the program under test has opened it.
    TargetScreen* target(const QString& form);

    /// Registers, loads and shows the screen under test.
    template <class T> T* open(const QString& form)
    {
        screens.add<T>(form);
        auto* screen = static_cast<T*>(screens.load(form));
        screens.show(form);
        return screen;
    }

    /// Runs a statement that has to succeed.
    void execute(const QString& sql);
    QString verify();

    TestBook book;
    QTemporaryDir root;
    platform::FolderDrive drive;
    ScriptedBoxes boxes;
    RecordingShell shell;
    RecordingSounds sounds;
    FixedFolders folders;
    RecordingFavourites favourites;
    RecordingHelpViewer help;
    RecordingMailContacts mailContacts;
    FixedClock clock;
    RecordingPrinter printer;
    RecordingMail mail;
    RecordingMailAccounts mailAccounts;
    ScriptedModem modem;
    RecordingWordProcessor wordProcessor;
    ScriptedScanner scanner;
    FixedSpeller speller;
    jet::Schema schema;
    core::SharedState shared;
    core::Screens screens;
    RecordingFrame frame;
    core::Context context;
};

} // namespace support
