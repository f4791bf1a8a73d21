#include "core/shell/tool_bar_table.h"

#include <QtGlobal>

namespace shell {
namespace {

constexpr Tool AddTools[] = {
    {u"NewContact", QT_TRANSLATE_NOOP("shell", "New contact"),
        QT_TRANSLATE_NOOP("shell", "Begin a new contact with all its details"), u"person-add", u"Ctrl+N"},
    {u"ID_Add", QT_TRANSLATE_NOOP("shell", "All ways to add"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with every screen that adds contacts"), u"launch"},
    {u"ID_Add2", QT_TRANSLATE_NOOP("shell", "Add launch pad"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad on its add page"), u"launch"},
    {u"Edit", QT_TRANSLATE_NOOP("shell", "Contacts Detailed Add/Edit"),
        QT_TRANSLATE_NOOP("shell", "Every field of a contact on one form, for new contacts and for changes"),
        u"person-add"},
    {u"M_Add", QT_TRANSLATE_NOOP("shell", "Add a list"),
        QT_TRANSLATE_NOOP("shell", "Type many contacts one below another, as in a table"), u"list"},
    {u"TurboAdd", QT_TRANSLATE_NOOP("shell", "Contacts Turbo Add"),
        QT_TRANSLATE_NOOP("shell", "Add a contact with the fewest keys: autotext fills the rest"),
        u"person-add", u"Ctrl+Shift+T"},
    {u"AddBus", QT_TRANSLATE_NOOP("shell", "Contacts Business Add/Edit"),
        QT_TRANSLATE_NOOP("shell", "A short form for firms and business contacts"), u"work"},
    {u"RecDupe", QT_TRANSLATE_NOOP("shell", "Record Duplicator"),
        QT_TRANSLATE_NOOP(
            "shell", "Make the spouse, a child or the firm of a contact a contact of their own"),
        u"persons"},
    {u"ID_Add1", QT_TRANSLATE_NOOP("shell", "More ways to add"),
        QT_TRANSLATE_NOOP("shell", "Stands for the groups of add screens"), u"person-add"},
    {u"ID_AddGray", QT_TRANSLATE_NOOP("shell", "Add with a wide page"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar so that the add form has the whole width"),
        u"person-add"},
};

constexpr Tool BasicAddTools[] = {
    {u"ID_Add3", QT_TRANSLATE_NOOP("shell", "Contacts Basic Add"),
        QT_TRANSLATE_NOOP("shell", "Name, home address and telephone of a new contact, no more"),
        u"person-add"},
    {u"ID_SimpleAdd", QT_TRANSLATE_NOOP("shell", "Quick add"),
        QT_TRANSLATE_NOOP("shell", "Add a contact in the contact browser"), u"person-add"},
    {u"ID_AddBasic1", QT_TRANSLATE_NOOP("shell", "Basic add, wide page"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for the form"), u"card"},
    {u"ID_AddBasic2", QT_TRANSLATE_NOOP("shell", "Basic add, wider page"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for two columns"), u"card"},
    {u"ID_Basic2", QT_TRANSLATE_NOOP("shell", "Basic layout"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for the page"), u"card"},
};

constexpr Tool EditTools[] = {
    {u"EditContact", QT_TRANSLATE_NOOP("shell", "Edit contact"),
        QT_TRANSLATE_NOOP("shell", "Change the contact that was chosen last"), u"person-edit", u"Ctrl+E"},
    {u"EditDD", QT_TRANSLATE_NOOP("shell", "All ways to edit"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with every screen that changes contacts"),
        u"launch"},
    {u"EditFull", QT_TRANSLATE_NOOP("shell", "Edit in full view"),
        QT_TRANSLATE_NOOP("shell", "Change contacts while you leaf through them"), u"person-edit", u"F2"},
    {u"QuickEdit", QT_TRANSLATE_NOOP("shell", "Edit a list"),
        QT_TRANSLATE_NOOP("shell", "Change many contacts in one table"), u"edit", u"Ctrl+Shift+E"},
    {u"PhReplace", QT_TRANSLATE_NOOP("shell", "Replace numbers, codes and cities"),
        QT_TRANSLATE_NOOP("shell", "Change an exchange, an area code or a city name in all contacts at once"),
        u"dial"},
    {u"CatEdit", QT_TRANSLATE_NOOP("shell", "Arrange categories"),
        QT_TRANSLATE_NOOP("shell", "Give many contacts another category"), u"category"},
    {u"PriEdit", QT_TRANSLATE_NOOP("shell", "Arrange priorities"),
        QT_TRANSLATE_NOOP("shell", "Give many contacts another priority"), u"star"},
    {u"ID_OrgCat", QT_TRANSLATE_NOOP("shell", "Arrange contacts"),
        QT_TRANSLATE_NOOP("shell", "Sort contacts into categories and subcategories"), u"category"},
    {u"ID_OrgIntFav", QT_TRANSLATE_NOOP("shell", "Arrange Internet favourites"),
        QT_TRANSLATE_NOOP("shell", "Put the web addresses of your contacts in order"), u"world"},
};

constexpr Tool ViewTools[] = {
    {u"ID_View", QT_TRANSLATE_NOOP("shell", "All views"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with the main views"), u"launch"},
    {u"FullView", QT_TRANSLATE_NOOP("shell", "Contacts Full View"),
        QT_TRANSLATE_NOOP("shell", "One contact at a time, with everything that is known"), u"card",
        u"Ctrl+L"},
    {u"QuickView", QT_TRANSLATE_NOOP("shell", "Quick view"),
        QT_TRANSLATE_NOOP("shell", "Browse contacts with the main fields beside the list"), u"persons"},
    {u"SmartView", QT_TRANSLATE_NOOP("shell", "Smart view"),
        QT_TRANSLATE_NOOP("shell", "A contact laid out as a web page"), u"world"},
    {u"ListView", QT_TRANSLATE_NOOP("shell", "List view"),
        QT_TRANSLATE_NOOP("shell", "All contacts as one table"), u"list", u"F6"},
    {u"ID_View1", QT_TRANSLATE_NOOP("shell", "Diary view"),
        QT_TRANSLATE_NOOP("shell", "Leaf through the contacts as in an address diary"), u"note"},
    {u"ContactAddressNotebook", QT_TRANSLATE_NOOP("shell", "Diary, single page"),
        QT_TRANSLATE_NOOP("shell", "One page of the address diary"), u"note"},
    {u"ID_Details", QT_TRANSLATE_NOOP("shell", "Full list"),
        QT_TRANSLATE_NOOP("shell", "All contacts with the columns and order that you choose"), u"list"},
    {u"ID_NoteView", QT_TRANSLATE_NOOP("shell", "Wide note page"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for the note page"), u"note"},
};

constexpr Tool ViewOtherTools[] = {
    {u"ID_ViewOther", QT_TRANSLATE_NOOP("shell", "All other views"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with the further views"), u"launch"},
    {u"DetailView", QT_TRANSLATE_NOOP("shell", "Detail page"),
        QT_TRANSLATE_NOOP("shell", "The contact selector with the detailed page"), u"card"},
    {u"FullView1", QT_TRANSLATE_NOOP("shell", "Full page"),
        QT_TRANSLATE_NOOP("shell", "The contact selector with the full page"), u"card"},
    {u"BriefView", QT_TRANSLATE_NOOP("shell", "Brief page"),
        QT_TRANSLATE_NOOP("shell", "The contact selector with the brief page"), u"card"},
    {u"PersonalView", QT_TRANSLATE_NOOP("shell", "Personal page"),
        QT_TRANSLATE_NOOP("shell", "The contact selector with family and personal data"), u"home"},
    {u"BusinessView", QT_TRANSLATE_NOOP("shell", "Business page"),
        QT_TRANSLATE_NOOP("shell", "The contact selector with the business addresses"), u"work"},
    {u"CategoryWise", QT_TRANSLATE_NOOP("shell", "View by category"),
        QT_TRANSLATE_NOOP("shell", "The contacts of each category"), u"category"},
    {u"LocationWise", QT_TRANSLATE_NOOP("shell", "View by location"),
        QT_TRANSLATE_NOOP("shell", "The contacts of each city and country"), u"location"},
    {u"Picture", QT_TRANSLATE_NOOP("shell", "View by picture"),
        QT_TRANSLATE_NOOP("shell", "The contacts with their photos"), u"picture"},
    {u"Linked", QT_TRANSLATE_NOOP("shell", "Contacts Link Viewer"),
        QT_TRANSLATE_NOOP("shell", "Letters, e-mails and other records linked to a contact"), u"link"},
    {u"ID_Summary", QT_TRANSLATE_NOOP("shell", "Summary"),
        QT_TRANSLATE_NOOP("shell", "How many contacts there are of each kind"), u"report"},
};

constexpr Tool AddressBookTools[] = {
    {u"Address", QT_TRANSLATE_NOOP("shell", "Address notebook"),
        QT_TRANSLATE_NOOP("shell", "The addresses as a notebook with letter tabs"), u"note"},
    {u"AddressbookHome", QT_TRANSLATE_NOOP("shell", "Address book home"),
        QT_TRANSLATE_NOOP("shell", "The start page of the address book"), u"home"},
    {u"Addbook", QT_TRANSLATE_NOOP("shell", "Address book reports"),
        QT_TRANSLATE_NOOP("shell", "Preview, print and save the address book in several layouts"), u"report",
        u"Ctrl+Shift+P"},
    {u"ID_PocketAddressBook", QT_TRANSLATE_NOOP("shell", "Pocket address book"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync, which prints the pocket book"),
        u"printer"},
};

constexpr Tool ListsTools[] = {
    {u"DList", QT_TRANSLATE_NOOP("shell", "Lists to edit"),
        QT_TRANSLATE_NOOP("shell", "Stands for the lists of this page"), u"list"},
    {u"LTree", QT_TRANSLATE_NOOP("shell", "Lists as a tree"),
        QT_TRANSLATE_NOOP("shell", "Stands for the lists of this page"), u"tree"},
    {u"Editable", QT_TRANSLATE_NOOP("shell", "All columns"),
        QT_TRANSLATE_NOOP("shell", "Edit the whole list of contacts in a table"), u"edit"},
    {u"ID_Name", QT_TRANSLATE_NOOP("shell", "Names"),
        QT_TRANSLATE_NOOP("shell", "Edit titles and names in a table"), u"persons"},
    {u"ID_Company", QT_TRANSLATE_NOOP("shell", "Companies"),
        QT_TRANSLATE_NOOP("shell", "Edit firms and job titles in a table"), u"work"},
    {u"Add_Home", QT_TRANSLATE_NOOP("shell", "Home addresses"),
        QT_TRANSLATE_NOOP("shell", "Edit home addresses in a table"), u"home"},
    {u"Add_Work1", QT_TRANSLATE_NOOP("shell", "Work addresses 1"),
        QT_TRANSLATE_NOOP("shell", "Edit the first work addresses in a table"), u"work"},
    {u"Add_Work2", QT_TRANSLATE_NOOP("shell", "Work addresses 2"),
        QT_TRANSLATE_NOOP("shell", "Edit the second work addresses in a table"), u"work"},
    {u"ID_Area", QT_TRANSLATE_NOOP("shell", "Areas"),
        QT_TRANSLATE_NOOP("shell", "Edit regions and places in a table"), u"location"},
    {u"Ph_All", QT_TRANSLATE_NOOP("shell", "All numbers"),
        QT_TRANSLATE_NOOP("shell", "Edit all telephone numbers in a table"), u"phone"},
    {u"Ph_Home", QT_TRANSLATE_NOOP("shell", "Home numbers"),
        QT_TRANSLATE_NOOP("shell", "Edit home numbers in a table"), u"phone"},
    {u"Ph_Work1", QT_TRANSLATE_NOOP("shell", "Work numbers 1"),
        QT_TRANSLATE_NOOP("shell", "Edit the first work numbers in a table"), u"phone"},
    {u"Ph_Work2", QT_TRANSLATE_NOOP("shell", "Work numbers 2"),
        QT_TRANSLATE_NOOP("shell", "Edit the second work numbers in a table"), u"phone"},
    {u"ID_EmailL", QT_TRANSLATE_NOOP("shell", "E-mail addresses"),
        QT_TRANSLATE_NOOP("shell", "Edit e-mail addresses in a table"), u"envelope"},
    {u"ID_Web", QT_TRANSLATE_NOOP("shell", "Web addresses"),
        QT_TRANSLATE_NOOP("shell", "Edit web addresses in a table"), u"world"},
    {u"ID_Simple", QT_TRANSLATE_NOOP("shell", "Main fields"),
        QT_TRANSLATE_NOOP("shell", "Edit the most used fields in a table"), u"list"},
    {u"ID_DetailsL", QT_TRANSLATE_NOOP("shell", "Personal details"),
        QT_TRANSLATE_NOOP("shell", "Edit personal details in a table"), u"card"},
    {u"ID_Date", QT_TRANSLATE_NOOP("shell", "Dates"),
        QT_TRANSLATE_NOOP("shell", "Edit birthdays and anniversaries in a table"), u"calendar"},
    {u"ID_Other", QT_TRANSLATE_NOOP("shell", "Other fields"),
        QT_TRANSLATE_NOOP("shell", "Edit the remaining fields in a table"), u"list"},
    {u"ID_User", QT_TRANSLATE_NOOP("shell", "Own fields"),
        QT_TRANSLATE_NOOP("shell", "Edit your own three fields in a table"), u"star"},
    {u"ID_Priority", QT_TRANSLATE_NOOP("shell", "Priorities"),
        QT_TRANSLATE_NOOP("shell", "Edit priorities in a table"), u"star"},
    {u"ID_Product", QT_TRANSLATE_NOOP("shell", "Products"),
        QT_TRANSLATE_NOOP("shell", "Edit products in a table"), u"category"},
    {u"List", QT_TRANSLATE_NOOP("shell", "Wide list"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for the list"), u"list"},
    {u"ID_ListViews", QT_TRANSLATE_NOOP("shell", "Wide list views"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for the list views"), u"list"},
    {u"ID_Medium", QT_TRANSLATE_NOOP("shell", "Medium list"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for a medium list"), u"list"},
    {u"ID_Short", QT_TRANSLATE_NOOP("shell", "Short list"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for a short list"), u"list"},
};

constexpr Tool LookUpTools[] = {
    {u"Search", QT_TRANSLATE_NOOP("shell", "Search"),
        QT_TRANSLATE_NOOP("shell", "Find contacts by any word or by any field"), u"search", u"Ctrl+F"},
    {u"Lookup", QT_TRANSLATE_NOOP("shell", "Look up a contact"),
        QT_TRANSLATE_NOOP("shell", "Find a contact by what you know of it"), u"search"},
    {u"AdvanceSearch", QT_TRANSLATE_NOOP("shell", "Advanced search"),
        QT_TRANSLATE_NOOP("shell", "Join several conditions into one search"), u"filter", u"Ctrl+Shift+F"},
    {u"TSearch", QT_TRANSLATE_NOOP("shell", "Search by tree"),
        QT_TRANSLATE_NOOP("shell", "Find contacts in a tree of categories and places"), u"tree"},
    {u"Search1", QT_TRANSLATE_NOOP("shell", "Search in the selector"),
        QT_TRANSLATE_NOOP("shell", "Find contacts in the tree selector"), u"search"},
    {u"Filter", QT_TRANSLATE_NOOP("shell", "Wide filter page"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for the filter"), u"filter"},
};

constexpr Tool BirthdaysTools[] = {
    {u"AnnivOther", QT_TRANSLATE_NOOP("shell", "All of birthdays and anniversaries"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with birthdays, anniversaries and zodiac"),
        u"launch"},
    {u"ID_BirthdayList", QT_TRANSLATE_NOOP("shell", "Birthdays"),
        QT_TRANSLATE_NOOP("shell", "Who has a birthday, by day, week, month or year"), u"cake"},
    {u"BirthdayList", QT_TRANSLATE_NOOP("shell", "Birthday list"),
        QT_TRANSLATE_NOOP("shell", "The list of birthdays of contacts and their families"), u"cake",
        u"Ctrl+Shift+B"},
    {u"Btask", QT_TRANSLATE_NOOP("shell", "Birthday tasks"),
        QT_TRANSLATE_NOOP("shell", "Birthdays, to be copied to the scheduler"), u"calendar"},
    {u"Ann", QT_TRANSLATE_NOOP("shell", "Anniversaries"),
        QT_TRANSLATE_NOOP("shell", "The list of wedding anniversaries"), u"rings"},
    {u"SimpleBirthdayViewer", QT_TRANSLATE_NOOP("shell", "Simple birthday viewer"),
        QT_TRANSLATE_NOOP("shell", "A plain list of the coming birthdays"), u"cake"},
    {u"BAV", QT_TRANSLATE_NOOP("shell", "Birthday year view"),
        QT_TRANSLATE_NOOP("shell", "A year calendar with every birthday marked"), u"calendar"},
    {u"ZAV", QT_TRANSLATE_NOOP("shell", "Zodiac year view"),
        QT_TRANSLATE_NOOP("shell", "A year calendar with the sun signs"), u"zodiac"},
    {u"ID_Zodiac", QT_TRANSLATE_NOOP("shell", "Zodiac signs"),
        QT_TRANSLATE_NOOP("shell", "The twelve signs and who was born under each"), u"zodiac"},
};

constexpr Tool TelephoneTools[] = {
    {u"PhoneDialer", QT_TRANSLATE_NOOP("shell", "All of the telephone"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with the telephone screens"), u"launch"},
    {u"Phone", QT_TRANSLATE_NOOP("shell", "Phone dialer"),
        QT_TRANSLATE_NOOP("shell", "Dial a number of a contact and keep a record of the call"), u"dial",
        u"F9"},
    {u"PSearch", QT_TRANSLATE_NOOP("shell", "Phone search"),
        QT_TRANSLATE_NOOP("shell", "Find a number, or whose number it is"), u"search", u"F4"},
    {u"PList", QT_TRANSLATE_NOOP("shell", "Phone lists"),
        QT_TRANSLATE_NOOP("shell", "Make, keep and print telephone lists"), u"phone"},
    {u"ID_Call", QT_TRANSLATE_NOOP("shell", "Previous calls"),
        QT_TRANSLATE_NOOP("shell", "The record of past calls and the calls to make"), u"clock"},
    {u"Communicator", QT_TRANSLATE_NOOP("shell", "Communicator"),
        QT_TRANSLATE_NOOP("shell", "Call, write or mail a contact from one window"), u"phone"},
    {u"TxtFrmt", QT_TRANSLATE_NOOP("shell", "Telephone numbers as text"),
        QT_TRANSLATE_NOOP("shell", "The telephone list as plain text"), u"note"},
};

constexpr Tool CityCodesTools[] = {
    {u"CitySTD", QT_TRANSLATE_NOOP("shell", "City telephone codes"),
        QT_TRANSLATE_NOOP("shell", "Look up the code of a city, or the city of a code"), u"city"},
    {u"CitypinStd", QT_TRANSLATE_NOOP("shell", "Indian city, pin and STD codes"),
        QT_TRANSLATE_NOOP("shell", "Find pin code and STD code of an Indian city"), u"city"},
    {u"CitypinStdI", QT_TRANSLATE_NOOP("shell", "International city codes"),
        QT_TRANSLATE_NOOP("shell", "Find country codes and area codes of the world"), u"world"},
    {u"CityUtility", QT_TRANSLATE_NOOP("shell", "City utility"),
        QT_TRANSLATE_NOOP("shell", "Emergency numbers and services of the cities"), u"city"},
    {u"IndianCities", QT_TRANSLATE_NOOP("shell", "Indian cities, wide page"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for the table of cities"), u"city"},
    {u"InternationalCities", QT_TRANSLATE_NOOP("shell", "International cities, wide page"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for the table of cities"), u"world"},
};

constexpr Tool LettersTools[] = {
    {u"ID_Letter12", QT_TRANSLATE_NOOP("shell", "All about letters"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with the letter screens"), u"launch"},
    {u"Creator", QT_TRANSLATE_NOOP("shell", "Letter creator"),
        QT_TRANSLATE_NOOP("shell", "Write a letter; address and name come from the contact"), u"letter",
        u"Ctrl+Shift+L"},
    {u"Letters", QT_TRANSLATE_NOOP("shell", "Letters"),
        QT_TRANSLATE_NOOP("shell", "Write letters to contacts"), u"letter"},
    {u"BusinessLetterCreator", QT_TRANSLATE_NOOP("shell", "Business letter creator"),
        QT_TRANSLATE_NOOP("shell", "Write a business letter with reference, subject and enclosures"),
        u"work"},
    {u"Record", QT_TRANSLATE_NOOP("shell", "Letter record"),
        QT_TRANSLATE_NOOP("shell", "The letters that you wrote and received"), u"folder"},
    {u"SimpleLetterViewer", QT_TRANSLATE_NOOP("shell", "Simple letter viewer"),
        QT_TRANSLATE_NOOP("shell", "Read the recorded letters"), u"letter"},
    {u"ID_LetterSave", QT_TRANSLATE_NOOP("shell", "Save a letter"),
        QT_TRANSLATE_NOOP("shell", "Put a letter on record"), u"save"},
    {u"LtSave", QT_TRANSLATE_NOOP("shell", "Saved letters"),
        QT_TRANSLATE_NOOP("shell", "The saved letters by category"), u"folder"},
    {u"ArrangeCategory", QT_TRANSLATE_NOOP("shell", "Arrange letters"),
        QT_TRANSLATE_NOOP("shell", "Put the recorded letters into categories"), u"category"},
    {u"ID_LetterSummary", QT_TRANSLATE_NOOP("shell", "Letter summary"),
        QT_TRANSLATE_NOOP("shell", "How many letters went to whom"), u"report"},
    {u"MailList", QT_TRANSLATE_NOOP("shell", "Mailing lists and labels"),
        QT_TRANSLATE_NOOP("shell", "Make mailing lists and print labels"), u"list"},
    {u"ID_LetterScanner", QT_TRANSLATE_NOOP("shell", "Scan a letter"),
        QT_TRANSLATE_NOOP("shell", "Take a letter from the scanner into the record"), u"picture"},
    {u"ViewLetters", QT_TRANSLATE_NOOP("shell", "Prepare letters"),
        QT_TRANSLATE_NOOP("shell", "Shows the notice to wait while the letters are made ready"), u"clock"},
};

constexpr Tool EmailsTools[] = {
    {u"E=Mail", QT_TRANSLATE_NOOP("shell", "All about e-mail"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with the e-mail screens"), u"launch"},
    {u"EMails", QT_TRANSLATE_NOOP("shell", "E-mail creator"),
        QT_TRANSLATE_NOOP("shell", "Write an e-mail to one contact or to many"), u"envelope",
        u"Ctrl+Shift+M"},
    {u"SimpleEmailCreator", QT_TRANSLATE_NOOP("shell", "Simple e-mail creator"),
        QT_TRANSLATE_NOOP("shell", "Write an e-mail on one plain page"), u"envelope"},
    {u"EmailHome", QT_TRANSLATE_NOOP("shell", "E-mail list"),
        QT_TRANSLATE_NOOP("shell", "The e-mail addresses of your contacts"), u"list"},
    {u"ERecord", QT_TRANSLATE_NOOP("shell", "E-mail record"),
        QT_TRANSLATE_NOOP("shell", "The mails that you sent and received"), u"folder"},
    {u"ArrangeEmail", QT_TRANSLATE_NOOP("shell", "Arrange e-mails"),
        QT_TRANSLATE_NOOP("shell", "Put the recorded mails into categories"), u"category"},
    {u"ID_TimedEmails", QT_TRANSLATE_NOOP("shell", "Timed e-mails"),
        QT_TRANSLATE_NOOP("shell", "Mails that go out on a day that you set"), u"clock"},
    {u"SMS", QT_TRANSLATE_NOOP("shell", "SMS by e-mail"),
        QT_TRANSLATE_NOOP("shell", "Send a short message through an e-mail gateway"), u"sms"},
    {u"EmailAddrUpdate", QT_TRANSLATE_NOOP("shell", "Update e-mail addresses"),
        QT_TRANSLATE_NOOP("shell", "Take changed addresses over into the contacts"), u"edit"},
    {u"ImportEmails", QT_TRANSLATE_NOOP("shell", "Bulk e-mail addresses"),
        QT_TRANSLATE_NOOP("shell", "Read a list of addresses and mail to them"), u"import"},
    {u"Outlook", QT_TRANSLATE_NOOP("shell", "Outlook inbox"),
        QT_TRANSLATE_NOOP("shell", "Read the folders of Outlook"), u"envelope"},
    {u"ImportMs-OutlookEmails", QT_TRANSLATE_NOOP("shell", "Import Outlook e-mails"),
        QT_TRANSLATE_NOOP("shell", "Take mails of Outlook into the record"), u"import"},
    {u"OutlookEmailsSave", QT_TRANSLATE_NOOP("shell", "Save Outlook e-mails"),
        QT_TRANSLATE_NOOP("shell", "Keep mails of Outlook as documents"), u"save"},
    {u"EmailsToRtf", QT_TRANSLATE_NOOP("shell", "E-mails to documents"),
        QT_TRANSLATE_NOOP("shell", "Keep mails as RTF documents"), u"note"},
    {u"EmailSavetoDatabase", QT_TRANSLATE_NOOP("shell", "Save e-mail to the database"),
        QT_TRANSLATE_NOOP("shell", "Keep mails with categories and fields of your own"), u"save"},
    {u"OutlookExpressEmails", QT_TRANSLATE_NOOP("shell", "Outlook Express e-mails"),
        QT_TRANSLATE_NOOP("shell", "Read the mails of Outlook Express"), u"envelope"},
    {u"ESetup", QT_TRANSLATE_NOOP("shell", "E-mail set-up, wide page"),
        QT_TRANSLATE_NOOP("shell", "Hides the list bar to make room for the set-up page"), u"setup"},
};

constexpr Tool DataTransferTools[] = {
    {u"ID_Data", QT_TRANSLATE_NOOP("shell", "All of data transfer"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with import and export"), u"launch"},
    {u"impcnt", QT_TRANSLATE_NOOP("shell", "Import contacts"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync to take contacts in"), u"import"},
    {u"LS-ImportContats", QT_TRANSLATE_NOOP("shell", "Import from other databases"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync to read other databases"), u"import"},
    {u"LS-OutlookImp/Exp", QT_TRANSLATE_NOOP("shell", "Outlook import and export"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync to exchange contacts with Outlook"),
        u"import"},
    {u"LS-PalmImp/Exp", QT_TRANSLATE_NOOP("shell", "Palm import and export"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync to exchange contacts with a hand-held"),
        u"import"},
    {u"ImportVCards", QT_TRANSLATE_NOOP("shell", "Import vCards"),
        QT_TRANSLATE_NOOP("shell", "Take in the cards of telephones and other programs"), u"import"},
    {u"VisitingcardtoOrKvaneContacts", QT_TRANSLATE_NOOP("shell", "Visiting cards to contacts"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync to read visiting cards"), u"card"},
    {u"Addoutlook", QT_TRANSLATE_NOOP("shell", "Add from Outlook address book"),
        QT_TRANSLATE_NOOP("shell", "Take contacts from the Outlook address book"), u"person-add"},
    {u"AddoutlookExpress", QT_TRANSLATE_NOOP("shell", "Add from Outlook Express address book"),
        QT_TRANSLATE_NOOP("shell", "Take contacts from the Outlook Express address book"), u"person-add"},
};

constexpr Tool ExportTools[] = {
    {u"ExporttoVCF", QT_TRANSLATE_NOOP("shell", "Export to vCard files"),
        QT_TRANSLATE_NOOP("shell", "Write contacts as visiting card files for other programs"), u"card"},
    {u"View Palm", QT_TRANSLATE_NOOP("shell", "Palm Pilot"),
        QT_TRANSLATE_NOOP("shell", "Write contacts for a Palm hand-held"), u"export"},
    {u"EmailExport", QT_TRANSLATE_NOOP("shell", "Export e-mail addresses"),
        QT_TRANSLATE_NOOP("shell", "Write the e-mail addresses to a file"), u"envelope"},
    {u"ExportAddressBook", QT_TRANSLATE_NOOP("shell", "Export the address book"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync to write the address book"), u"export"},
    {u"ExporttoOutlookExpress", QT_TRANSLATE_NOOP("shell", "Export to Outlook Express"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync to write contacts for Outlook Express"),
        u"export"},
    {u"exppalm", QT_TRANSLATE_NOOP("shell", "Export to Palm"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync to fill a hand-held"), u"export"},
    {u"explook", QT_TRANSLATE_NOOP("shell", "Export to Outlook"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync to fill Outlook"), u"export"},
    {u"ExpAcc", QT_TRANSLATE_NOOP("shell", "Export to Access"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync to write an Access database"),
        u"export"},
};

constexpr Tool PrintTools[] = {
    {u"ID_Print1", QT_TRANSLATE_NOOP("shell", "All reports"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with the reports"), u"launch"},
    {u"Pname", QT_TRANSLATE_NOOP("shell", "Names"),
        QT_TRANSLATE_NOOP("shell", "The full list as a report of names"), u"report"},
    {u"Pdetails", QT_TRANSLATE_NOOP("shell", "Details"),
        QT_TRANSLATE_NOOP("shell", "The full list as a report with details"), u"report"},
    {u"Pcompany", QT_TRANSLATE_NOOP("shell", "Companies"),
        QT_TRANSLATE_NOOP("shell", "The full list as a report by company"), u"report"},
    {u"Parea", QT_TRANSLATE_NOOP("shell", "Areas"),
        QT_TRANSLATE_NOOP("shell", "The full list as a report by area"), u"report"},
    {u"Pphone1", QT_TRANSLATE_NOOP("shell", "Telephone numbers"),
        QT_TRANSLATE_NOOP("shell", "The full list as a report of telephone numbers"), u"report"},
    {u"Pemail", QT_TRANSLATE_NOOP("shell", "E-mail addresses"),
        QT_TRANSLATE_NOOP("shell", "The full list as a report of e-mail addresses"), u"report"},
    {u"Pweb", QT_TRANSLATE_NOOP("shell", "Web addresses"),
        QT_TRANSLATE_NOOP("shell", "The full list as a report of web addresses"), u"report"},
    {u"Pdt1", QT_TRANSLATE_NOOP("shell", "Dates"),
        QT_TRANSLATE_NOOP("shell", "The full list as a report of birthdays and anniversaries"), u"report"},
    {u"Pother", QT_TRANSLATE_NOOP("shell", "Other fields"),
        QT_TRANSLATE_NOOP("shell", "The full list as a report of the other fields"), u"report"},
    {u"ID_Full", QT_TRANSLATE_NOOP("shell", "Full address book"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync, which prints the full address book"),
        u"printer"},
    {u"ID_PhoneList", QT_TRANSLATE_NOOP("shell", "Phone list"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync, which prints the phone lists"),
        u"printer"},
    {u"ID_Bday", QT_TRANSLATE_NOOP("shell", "Birthday report"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync, which prints the birthdays"),
        u"printer"},
    {u"ID_Anniv", QT_TRANSLATE_NOOP("shell", "Anniversary report"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync, which prints the anniversaries"),
        u"printer"},
    {u"ID_FamilyTree", QT_TRANSLATE_NOOP("shell", "Family tree report"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync, which prints the family tree"),
        u"printer"},
    {u"ID_Email", QT_TRANSLATE_NOOP("shell", "E-mail report"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync, which prints the e-mail record"),
        u"printer"},
    {u"ID_Letter1", QT_TRANSLATE_NOOP("shell", "Letter report"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync, which prints the letter record"),
        u"printer"},
    {u"Letter", QT_TRANSLATE_NOOP("shell", "Letter record report"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Link & Sync, which prints the recorded letters"),
        u"printer"},
};

constexpr Tool FunctionsTools[] = {
    {u"ID_Fun", QT_TRANSLATE_NOOP("shell", "All functions"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with family, clubs, files and backup"), u"launch"},
    {u"FamilyTree", QT_TRANSLATE_NOOP("shell", "Family tree"),
        QT_TRANSLATE_NOOP("shell", "Who is whose child, drawn as a tree"), u"family", u"F7"},
    {u"ID_Associations", QT_TRANSLATE_NOOP("shell", "Associations and clubs"),
        QT_TRANSLATE_NOOP("shell", "Clubs, their members and their meetings"), u"club"},
    {u"RestoreBackup", QT_TRANSLATE_NOOP("shell", "Restore from a backup"),
        QT_TRANSLATE_NOOP("shell", "Put the address book back as it was when a backup was made"), u"restore"},
};

constexpr Tool OtherFunctionsTools[] = {
    {u"GenerateTextFile", QT_TRANSLATE_NOOP("shell", "Text file with labels"),
        QT_TRANSLATE_NOOP(
            "shell", "Writes the contacts to a text file on the desktop, each value with its label"),
        u"note"},
    {u"GenerateTextFilewolabel", QT_TRANSLATE_NOOP("shell", "Text file without labels"),
        QT_TRANSLATE_NOOP("shell", "Writes the contacts to a text file on the desktop, values only"),
        u"note"},
};

constexpr Tool SetupTools[] = {
    {u"ID_Setup", QT_TRANSLATE_NOOP("shell", "All of set-up"),
        QT_TRANSLATE_NOOP("shell", "Opens the launch pad with the set-up screens"), u"launch"},
    {u"CSetup", QT_TRANSLATE_NOOP("shell", "Address Book Setup"),
        QT_TRANSLATE_NOOP("shell", "Categories, lists, cities and the defaults of a new contact"), u"setup",
        u"Ctrl+,"},
    {u"LSetup", QT_TRANSLATE_NOOP("shell", "Letter and e-mail set-up"),
        QT_TRANSLATE_NOOP("shell", "Openings, closings, stored texts, mail categories and the signature"),
        u"letter"},
};

constexpr Tool ProgramsTools[] = {
    {u"Contacts", QT_TRANSLATE_NOOP("shell", "Orvane Contacts"), QT_TRANSLATE_NOOP("shell", "This program"),
        u"persons"},
    {u"Diary", QT_TRANSLATE_NOOP("shell", "Orvane Scheduler"),
        QT_TRANSLATE_NOOP("shell", "Hands over to the diary and scheduler of the suite"), u"calendar"},
    {u"Pr-CellPhone", QT_TRANSLATE_NOOP("shell", "Cell phones"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane PersonalRecords"), u"phone"},
    {u"Pr-PhoneCard", QT_TRANSLATE_NOOP("shell", "Phone cards"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane PersonalRecords"), u"card"},
    {u"Pr-ClubMembership", QT_TRANSLATE_NOOP("shell", "Club memberships"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane PersonalRecords"), u"club"},
    {u"Close", QT_TRANSLATE_NOOP("shell", "End at once"),
        QT_TRANSLATE_NOOP("shell", "Ends the program without any further question"), u"cancel"},
    {u"Exit", QT_TRANSLATE_NOOP("shell", "Exit"), QT_TRANSLATE_NOOP("shell", "Closes the program"), u"exit",
        u"Ctrl+Q"},
};

constexpr Tool InformationTools[] = {
    {u"Info-Cities", QT_TRANSLATE_NOOP("shell", "About cities"),
        QT_TRANSLATE_NOOP("shell", "Hands over to Orvane Utility, which knows more about cities"), u"city"},
    {u"OrvaneSuiteProductDetails", QT_TRANSLATE_NOOP("shell", "Product details"),
        QT_TRANSLATE_NOOP("shell", "Opens the pages about the programs of the suite"), u"info"},
};

constexpr Tool HelpTools[] = {
    {u"BHelp", QT_TRANSLATE_NOOP("shell", "Help"), QT_TRANSLATE_NOOP("shell", "Opens the help pages"),
        u"help", u"F1"},
    {u"ID_Help", QT_TRANSLATE_NOOP("shell", "Program overview"),
        QT_TRANSLATE_NOOP("shell", "What the program can do, screen by screen"), u"info"},
    {u"ProgramView", QT_TRANSLATE_NOOP("shell", "Program view"),
        QT_TRANSLATE_NOOP("shell", "All parts of the program at a glance"), u"tree"},
    {u"about", QT_TRANSLATE_NOOP("shell", "About Orvane Contacts"),
        QT_TRANSLATE_NOOP("shell", "Version, licences and the sources of the data"), u"info"},
};

/// The pages that the drop-downs of the command table name, and four of our own: ID_Edit, ID_ViewOther,
/// AddressBook, OtherFunctions.
constexpr ToolGroup Groups[] = {
    {u"ID_AddM", QT_TRANSLATE_NOOP("shell", "&Add"), u"person-add", AddTools},
    {u"ID_AddBasic", QT_TRANSLATE_NOOP("shell", "&Basic add"), u"card", BasicAddTools},
    {u"ID_Edit", QT_TRANSLATE_NOOP("shell", "&Edit"), u"person-edit", EditTools},
    {u"ID_AddBook", QT_TRANSLATE_NOOP("shell", "&View"), u"card", ViewTools},
    {u"ID_ViewOther", QT_TRANSLATE_NOOP("shell", "Vie&w other"), u"picture", ViewOtherTools},
    {u"AddressBook", QT_TRANSLATE_NOOP("shell", "Address boo&k"), u"home", AddressBookTools},
    {u"ID_List", QT_TRANSLATE_NOOP("shell", "&List"), u"list", ListsTools},
    {u"ID_Lookup", QT_TRANSLATE_NOOP("shell", "Look-&up"), u"search", LookUpTools},
    {u"BirthdayList1", QT_TRANSLATE_NOOP("shell", "Birthda&ys"), u"cake", BirthdaysTools},
    {u"ID_PDialer", QT_TRANSLATE_NOOP("shell", "&Telephone"), u"phone", TelephoneTools},
    {u"ID_PhoneDialer", QT_TRANSLATE_NOOP("shell", "&City codes"), u"city", CityCodesTools},
    {u"ID_Letter", QT_TRANSLATE_NOOP("shell", "Lette&rs"), u"letter", LettersTools},
    {u"ID_EMails", QT_TRANSLATE_NOOP("shell", "E-&mail"), u"envelope", EmailsTools},
    {u"Data", QT_TRANSLATE_NOOP("shell", "&Data transfer"), u"import", DataTransferTools},
    {u"ID_DataTransfer", QT_TRANSLATE_NOOP("shell", "E&xport"), u"export", ExportTools},
    {u"ID_Report", QT_TRANSLATE_NOOP("shell", "&Print"), u"printer", PrintTools},
    {u"Functions", QT_TRANSLATE_NOOP("shell", "&Functions"), u"family", FunctionsTools},
    {u"OtherFunctions", QT_TRANSLATE_NOOP("shell", "&Other functions"), u"launch", OtherFunctionsTools},
    {u"Setup", QT_TRANSLATE_NOOP("shell", "&Setup"), u"setup", SetupTools},
    {u"Programs", QT_TRANSLATE_NOOP("shell", "Pro&grams"), u"work", ProgramsTools},
    {u"ID_Inormation", QT_TRANSLATE_NOOP("shell", "&Information"), u"info", InformationTools},
    {u"Help", QT_TRANSLATE_NOOP("shell", "&Help"), u"help", HelpTools},
};

constexpr ListBarRow AddressBookRows[] = {
    {Row::ShortCode, u"b", QT_TRANSLATE_NOOP("shell", "Contact browser")},
    {Row::Tool, u"AddressbookHome", QT_TRANSLATE_NOOP("shell", "Address book home")},
    {Row::ShortCode, u"h", QT_TRANSLATE_NOOP("shell", "Full list")},
    {Row::ShortCode, u"d", QT_TRANSLATE_NOOP("shell", "Diary view")},
    {Row::ShortCode, u"dd", QT_TRANSLATE_NOOP("shell", "Diary, single page")},
    {Row::Tool, u"ID_Summary", QT_TRANSLATE_NOOP("shell", "Summary")},
    {Row::ShortCode, u"setupbook", QT_TRANSLATE_NOOP("shell", "Address Book Setup")},
};

constexpr ListBarRow AddAndEditRows[] = {
    {Row::ShortCode, u"m", QT_TRANSLATE_NOOP("shell", "Contacts Detailed Add/Edit")},
    {Row::ShortCode, u"l", QT_TRANSLATE_NOOP("shell", "Contacts Basic Add")},
    {Row::ShortCode, u"n", QT_TRANSLATE_NOOP("shell", "Contacts Business Add/Edit")},
    {Row::ShortCode, u"p", QT_TRANSLATE_NOOP("shell", "Contacts Turbo Add")},
    {Row::ShortCode, u"o", QT_TRANSLATE_NOOP("shell", "Add a list")},
    {Row::ShortCode, u"s", QT_TRANSLATE_NOOP("shell", "Edit a list")},
    {Row::ShortCode, u"editfull", QT_TRANSLATE_NOOP("shell", "Edit in full view")},
    {Row::Tool, u"RecDupe", QT_TRANSLATE_NOOP("shell", "Record Duplicator")},
    {Row::ShortCode, u"rep", QT_TRANSLATE_NOOP("shell", "Replace numbers and codes")},
};

constexpr ListBarRow ViewsAndSearchRows[] = {
    {Row::ShortCode, u"c", QT_TRANSLATE_NOOP("shell", "Contacts Full View")},
    {Row::ShortCode, u"bb", QT_TRANSLATE_NOOP("shell", "Smart view")},
    {Row::ShortCode, u"lbrief", QT_TRANSLATE_NOOP("shell", "Brief page")},
    {Row::ShortCode, u"lpersonal", QT_TRANSLATE_NOOP("shell", "Personal page")},
    {Row::ShortCode, u"lbusiness", QT_TRANSLATE_NOOP("shell", "Business page")},
    {Row::ShortCode, u"gcat", QT_TRANSLATE_NOOP("shell", "By category, place, picture")},
    {Row::Tool, u"Search", QT_TRANSLATE_NOOP("shell", "Search")},
    {Row::Tool, u"AdvanceSearch", QT_TRANSLATE_NOOP("shell", "Advanced search")},
    {Row::ShortCode, u"linked", QT_TRANSLATE_NOOP("shell", "Contacts Link Viewer")},
};

constexpr ListBarRow BirthdaysRows[] = {
    {Row::ShortCode, u"bd", QT_TRANSLATE_NOOP("shell", "Birthdays")},
    {Row::ShortCode, u"an", QT_TRANSLATE_NOOP("shell", "Anniversaries")},
    {Row::Tool, u"SimpleBirthdayViewer", QT_TRANSLATE_NOOP("shell", "Simple viewer")},
    {Row::Tool, u"BAV", QT_TRANSLATE_NOOP("shell", "Birthday year view")},
    {Row::ShortCode, u"av", QT_TRANSLATE_NOOP("shell", "Zodiac year view")},
    {Row::ShortCode, u"zo", QT_TRANSLATE_NOOP("shell", "Zodiac signs")},
};

constexpr ListBarRow TelephoneRows[] = {
    {Row::Tool, u"Phone", QT_TRANSLATE_NOOP("shell", "Phone dialer")},
    {Row::Tool, u"PList", QT_TRANSLATE_NOOP("shell", "Phone lists")},
    {Row::Tool, u"PSearch", QT_TRANSLATE_NOOP("shell", "Phone search")},
    {Row::Tool, u"ID_Call", QT_TRANSLATE_NOOP("shell", "Previous calls")},
    {Row::Tool, u"CitySTD", QT_TRANSLATE_NOOP("shell", "City telephone codes")},
    {Row::Tool, u"CitypinStd", QT_TRANSLATE_NOOP("shell", "Pin and STD codes")},
    {Row::Tool, u"CitypinStdI", QT_TRANSLATE_NOOP("shell", "International codes")},
    {Row::Tool, u"CityUtility", QT_TRANSLATE_NOOP("shell", "City utility")},
};

constexpr ListBarRow LettersRows[] = {
    {Row::Tool, u"Creator", QT_TRANSLATE_NOOP("shell", "Letter creator")},
    {Row::Tool, u"BusinessLetterCreator", QT_TRANSLATE_NOOP("shell", "Business letter")},
    {Row::Tool, u"Record", QT_TRANSLATE_NOOP("shell", "Letter record")},
    {Row::Tool, u"SimpleLetterViewer", QT_TRANSLATE_NOOP("shell", "Letter viewer")},
    {Row::Tool, u"MailList", QT_TRANSLATE_NOOP("shell", "Mailing lists and labels")},
    {Row::Tool, u"ID_LetterSummary", QT_TRANSLATE_NOOP("shell", "Letter summary")},
    {Row::ShortCode, u"setupfun", QT_TRANSLATE_NOOP("shell", "Letter set-up")},
};

constexpr ListBarRow EMailRows[] = {
    {Row::Tool, u"EMails", QT_TRANSLATE_NOOP("shell", "E-mail creator")},
    {Row::Tool, u"SimpleEmailCreator", QT_TRANSLATE_NOOP("shell", "Simple e-mail")},
    {Row::Tool, u"ERecord", QT_TRANSLATE_NOOP("shell", "E-mail record")},
    {Row::Tool, u"ID_TimedEmails", QT_TRANSLATE_NOOP("shell", "Timed e-mails")},
    {Row::Tool, u"ImportEmails", QT_TRANSLATE_NOOP("shell", "Bulk e-mail")},
    {Row::Tool, u"EmailSavetoDatabase", QT_TRANSLATE_NOOP("shell", "E-mail database")},
    {Row::ShortCode, u"imp3", QT_TRANSLATE_NOOP("shell", "Outlook inbox")},
    {Row::Tool, u"OutlookExpressEmails", QT_TRANSLATE_NOOP("shell", "Outlook Express")},
};

constexpr ListBarRow FamilyAndClubsRows[] = {
    {Row::ShortCode, u"ftree", QT_TRANSLATE_NOOP("shell", "Family tree")},
    {Row::ShortCode, u"association", QT_TRANSLATE_NOOP("shell", "Associations and clubs")},
    {Row::ShortCode, u"an", QT_TRANSLATE_NOOP("shell", "Anniversaries")},
    {Row::ShortCode, u"lpersonal", QT_TRANSLATE_NOOP("shell", "Personal page")},
    {Row::Tool, u"ID_Date", QT_TRANSLATE_NOOP("shell", "Birthdays and dates in a table")},
};

constexpr ListBarRow TransferRows[] = {
    {Row::ShortCode, u"imp1", QT_TRANSLATE_NOOP("shell", "Import contacts")},
    {Row::ShortCode, u"imp2", QT_TRANSLATE_NOOP("shell", "Visiting cards to contacts")},
    {Row::Tool, u"ImportVCards", QT_TRANSLATE_NOOP("shell", "Import vCards")},
    {Row::Tool, u"ExporttoVCF", QT_TRANSLATE_NOOP("shell", "Export to vCard files")},
    {Row::ShortCode, u"i", QT_TRANSLATE_NOOP("shell", "Palm Pilot")},
    {Row::Tool, u"Addoutlook", QT_TRANSLATE_NOOP("shell", "From Outlook address book")},
    {Row::Tool, u"EmailExport", QT_TRANSLATE_NOOP("shell", "Export e-mail addresses")},
    {Row::Tool, u"RestoreBackup", QT_TRANSLATE_NOOP("shell", "Restore from a backup")},
};

constexpr ListBarRow ReportsRows[] = {
    {Row::ShortCode, u"e", QT_TRANSLATE_NOOP("shell", "Address book reports")},
    {Row::Tool, u"Pname", QT_TRANSLATE_NOOP("shell", "Names")},
    {Row::Tool, u"Pdetails", QT_TRANSLATE_NOOP("shell", "Details")},
    {Row::Tool, u"Pcompany", QT_TRANSLATE_NOOP("shell", "Companies")},
    {Row::Tool, u"Pphone1", QT_TRANSLATE_NOOP("shell", "Telephone numbers")},
    {Row::Tool, u"Pdt1", QT_TRANSLATE_NOOP("shell", "Birthdays and dates")},
    {Row::Tool, u"GenerateTextFile", QT_TRANSLATE_NOOP("shell", "Text file with labels")},
    {Row::Tool, u"GenerateTextFilewolabel", QT_TRANSLATE_NOOP("shell", "Text file without labels")},
};

constexpr ListBarArea Areas[] = {
    {QT_TRANSLATE_NOOP("shell", "Address book"), u"card", AddressBookRows},
    {QT_TRANSLATE_NOOP("shell", "Add and edit"), u"person-add", AddAndEditRows},
    {QT_TRANSLATE_NOOP("shell", "Views and search"), u"search", ViewsAndSearchRows},
    {QT_TRANSLATE_NOOP("shell", "Birthdays"), u"cake", BirthdaysRows},
    {QT_TRANSLATE_NOOP("shell", "Telephone"), u"phone", TelephoneRows},
    {QT_TRANSLATE_NOOP("shell", "Letters"), u"letter", LettersRows},
    {QT_TRANSLATE_NOOP("shell", "E-mail"), u"envelope", EMailRows},
    {QT_TRANSLATE_NOOP("shell", "Family and clubs"), u"family", FamilyAndClubsRows},
    {QT_TRANSLATE_NOOP("shell", "Transfer"), u"import", TransferRows},
    {QT_TRANSLATE_NOOP("shell", "Reports"), u"printer", ReportsRows},
};

} // namespace

std::span<const ToolGroup> toolGroups()
{
    return Groups;
}
std::span<const ListBarArea> listBarAreas()
{
    return Areas;
}

bool givesRoomOnly(const core::Action& action)
{
    return std::holds_alternative<core::HideListBar>(action) || std::holds_alternative<core::Inert>(action);
}

} // namespace shell
