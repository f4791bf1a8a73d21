#pragma once

#include "core/shared_state.h"
#include "jet/database.h"

namespace platform {
class Clock;
class Drive;
class Favourites;
class HelpViewer;
class MailAccounts;
class MailClient;
class MailContacts;
class MessageBoxes;
class Printer;
class Scanner;
class SerialDevices;
class SerialPort;
class Shell;
class Sounds;
class SpecialFolders;
class Speller;
class WordProcessor;
} // namespace platform

namespace core {

class Frame;
class Screens;

/// What lies outside the program, each behind an interface.
struct Services {
    platform::Drive& drive;
    platform::MessageBoxes& boxes;
    platform::Shell& shell;
    platform::Sounds& sounds;
    platform::SpecialFolders& folders;
    platform::Favourites& favourites;
    platform::HelpViewer& help;
    platform::MailContacts& mailContacts;
    platform::Clock& clock;
    platform::Printer& printer;
    platform::MailClient& mail;
    platform::MailAccounts& mailAccounts;
    platform::SerialPort& modem;
    platform::SerialDevices& modemPorts;
    platform::WordProcessor& wordProcessor;
    platform::Scanner& scanner;
    platform::Speller& speller;
};

/// All that a screen gets; made once in main() and passed on to screens only. Plain functions take the values
/// they need.
struct Context {
    jet::Database& data; ///< the address book
    jet::Database& info; ///< shipped names and places
    const jet::Schema& schema;
    SharedState& shared;
    Screens& screens;
    Frame& frame;
    Services services;
};

} // namespace core
