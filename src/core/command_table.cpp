#include "core/command_table.h"

#include <algorithm>

namespace core {
namespace {

constexpr QStringView LinkAndSync = u"Orvane Link & Sync.exe";
constexpr QStringView PersonalRecords = u"Orvane PersonalRecords.exe";
constexpr QStringView Utility = u"Orvane Utility.exe";
constexpr QStringView Scheduler = u"Orvane Scheduler.exe";
constexpr QStringView ProductPage = u"\\UserFiles\\Misc\\Readme\\DescIndex.htm";

constexpr OpenScreen detailedView(QStringView page)
{
    return {.form = u"frmSelector", .page = page, .title = u"Detailed View Form"};
}

constexpr OpenScreen birthdays(QStringView page)
{
    return {.form = u"frmbday", .page = page};
}

constexpr OpenScreen ArrangeLetters{.form = u"Frmgmail", .page = u"Arrange", .title = u"Arrange Letter"};
constexpr OpenScreen ArrangeEmails{
    .form = u"FrmEmilRec", .page = u"E_Mail Category Wise", .title = u"Arrange Emails"};
constexpr OpenScreen EmailRecord{.form = u"FrmEmailRecord", .title = u"Email Record"};
constexpr OpenScreen LetterRecord{.form = u"Frmgmail", .page = u"Letter", .title = u"Letter Record"};
constexpr OpenScreen BusinessLetter{.form = u"FrmBusinessLetter", .letterKind = u"Business"};

constexpr Command Tools[] = {
    // Adding and changing contacts
    {u"NewContact", NewContact{}},
    {u"EditContact", EditContact{}},
    {u"Edit", OpenScreen{u"FormMain"}},
    {u"ID_Add3", OpenScreen{u"FormMain1"}},
    {u"AddBus", OpenScreen{u"FormMainBusiness"}},
    {u"ID_SimpleAdd", OpenScreen{u"FrmContacts"}},
    {u"M_Add", OpenScreen{u"frmMultiAdd"}},
    {u"TurboAdd", OpenScreen{u"TurboAdd"}},
    {u"QuickEdit", OpenScreen{u"FormListEdit"}},
    {u"EditFull", OpenScreen{u"FullView"}},
    {u"RecDupe", OpenScreen{u"FrmDuplicator"}},

    // Views and search
    {u"QuickView", OpenScreen{u"FrmContacts"}},
    {u"FullView", OpenScreen{u"FullView"}},
    {u"SmartView", OpenScreen{u"FullViewWeb"}},
    {u"ListView", OpenScreen{u"FrmFullGridview"}},
    {u"ContactAddressNotebook", OpenScreen{u"FrmBookView"}},
    {u"ID_View1", OpenScreen{u"FormNotebook"}},
    {u"Address", OpenScreen{u"FormNotebook"}},
    {u"ID_Details", OpenScreen{u"FrmListDetails"}},
    {u"Addbook", OpenScreen{u"FrmAddFullRptView"}},
    {u"ID_Summary", OpenScreen{u"frmcontsum"}},
    {u"Search", OpenScreen{u"FormSearch"}},
    {u"Lookup", OpenScreen{u"FormSearch"}},
    {u"AdvanceSearch", OpenScreen{u"frmGridCombo"}},
    {u"TSearch", OpenScreen{u"frmSelector1"}},
    {u"LocationWise", OpenScreen{.form = u"frmSelector1", .page = u"Location"}},
    {u"CategoryWise", OpenScreen{.form = u"frmSelector1", .page = u"Category"}},
    {u"Search1", OpenScreen{.form = u"frmSelector1", .page = u"Search"}},
    {u"Picture", OpenScreen{.form = u"frmSelector1", .page = u"Picture"}},
    {u"AddressbookHome", OpenScreen{u"FrmContact"}},
    {u"DetailView", detailedView(u"Detail")},
    {u"FullView1", detailedView(u"Full")},
    {u"BriefView", detailedView(u"Brief")},
    {u"PersonalView", detailedView(u"Personal")},
    {u"BusinessView", detailedView(u"Business")},
    {u"Linked", ShowLinkedRecords{}},

    // Arranging and set-up
    {u"ID_OrgCat", OpenScreen{u"frmArrangeCateg"}},
    {u"CatEdit", OpenScreen{u"Frmvcat"}},
    {u"PriEdit", OpenScreen{u"frmvpriority"}},
    {u"ID_OrgIntFav", OpenScreen{u"frmfavrt"}},
    {u"ArrangeCategory", ArrangeLetters},
    {u"ArrangeEmail", ArrangeEmails},
    {u"CSetup", OpenScreen{u"FrmOthers"}},
    {u"LSetup", OpenScreen{u"FormLtrSetUp"}},
    {u"RestoreBackup", Restore{}},

    // Telephone and look-ups
    {u"PList", OpenScreen{u"FrmPhList"}},
    {u"Phone", OpenScreen{u"FrmDialer"}},
    {u"ID_Call", OpenScreen{u"Form1"}},
    {u"Communicator", OpenScreen{u"FrmCall"}},
    {u"PSearch", OpenScreen{u"FrmPhSearch"}},
    {u"PhReplace", OpenScreen{u"FrmPhReplacer"}},
    {u"CitySTD", OpenScreen{u"FrmStdcode"}},
    {u"CitypinStd", OpenScreen{u"frmstd"}},
    {u"CitypinStdI", OpenScreen{u"Frmintstd"}},
    {u"CityUtility", OpenScreen{u"FrmCityUtil"}},
    {u"TxtFrmt", OpenScreen{u"FrmTelTxt"}},

    // Letters
    {u"Creator", OpenScreen{u"FrmLetter"}},
    {u"Letters", OpenScreen{u"FrmLetter"}},
    {u"BusinessLetterCreator", BusinessLetter},
    {u"SimpleLetterViewer", OpenScreen{u"FrmLetterRecord"}},
    {u"ID_LetterSave", OpenScreen{u"frmgmail1"}},
    {u"LtSave", OpenScreen{u"Frmgmail"}},
    {u"Record", LetterRecord},
    {u"ID_LetterSummary", OpenScreen{u"FrmLettSum"}},
    {u"MailList", OpenScreen{u"FormMailList"}},
    {u"ID_LetterScanner", OpenScreen{u"frmScan"}},
    // Kept: it only shows the notice to wait.
    {u"ViewLetters", OpenScreen{u"Form3"}},

    // E-mail
    {u"EMails", OpenScreen{u"FormEmail"}},
    {u"SimpleEmailCreator", OpenScreen{u"FrmEmailCr"}},
    {u"SMS", OpenScreen{u"frmSms"}},
    {u"ID_TimedEmails", OpenScreen{u"frmTimedEmail"}},
    {u"EmailAddrUpdate", OpenScreen{u"FrmEmailAddupdate"}},
    {u"ImportEmails", OpenScreen{u"frmImportEmail"}},
    {u"Outlook", OpenScreen{u"FormInbox"}},
    {u"ImportMs-OutlookEmails", OpenScreen{u"FormInbox"}},
    {u"OutlookEmailsSave", OpenScreen{u"FormEmailToRtf"}},
    {u"EmailsToRtf", OpenScreen{u"FormEmailToRtf"}},
    {u"EmailSavetoDatabase", OpenScreen{u"FrmEmailtoDb"}},
    {u"OutlookExpressEmails", OpenScreen{u"FrmoutlookExp"}},
    {u"EmailExport", OpenScreen{u"FrmEmailExp"}},
    {u"EmailHome", OpenScreen{u"FrmEmail"}},
    {u"ERecord", EmailRecord},

    // Birthdays, family and clubs
    {u"ID_BirthdayList", birthdays(u"Birthday")},
    {u"BirthdayList", birthdays(u"Birthday")},
    {u"Btask", birthdays(u"Birthday")},
    {u"Ann", birthdays(u"Anniversary")},
    {u"ID_Zodiac", OpenScreen{u"frmzodiac"}},
    {u"ZAV", OpenScreen{u"FormZodiacYr"}},
    {u"BAV", OpenScreen{u"FormAviewbday"}},
    {u"SimpleBirthdayViewer", OpenScreen{u"FrmBirthday"}},
    {u"FamilyTree", OpenScreen{u"frmfamily"}},
    {u"ID_Associations", OpenScreen{u"FrmAssoParty"}},

    // Transfer
    {u"Addoutlook", OpenScreen{u"Frmaddtooutlook"}},
    {u"AddoutlookExpress", OpenScreen{u"FrmAddressbook"}},
    {u"ExporttoVCF", OpenScreen{u"FrmVCF"}},
    {u"ImportVCards", OpenScreen{u"FormCardImport"}},
    {u"View Palm", OpenScreen{.form = u"FormPalmPilot", .page = u"Palm"}},
    {u"impcnt", LaunchLinkAndSync{}},
    {u"exppalm", LaunchLinkAndSync{}},
    {u"explook", LaunchLinkAndSync{}},
    {u"ExportAddressBook", LaunchLinkAndSync{}},
    {u"LS-ImportContats", LaunchLinkAndSync{}},
    {u"LS-OutlookImp/Exp", LaunchLinkAndSync{}},
    {u"ExporttoOutlookExpress", LaunchLinkAndSync{}},
    {u"LS-PalmImp/Exp", LaunchLinkAndSync{}},
    {u"VisitingcardtoOrKvaneContacts", LaunchLinkAndSync{}},
    {u"ExpAcc", StartSibling{.program = LinkAndSync}},

    // The columns that the editor of lists offers. Kept: four ids ask for a set of another name.
    {u"Add_Home", EditColumns{u"Add_Home"}},
    {u"Add_Work1", EditColumns{u"Add_Work1"}},
    {u"Add_Work2", EditColumns{u"Add_Work2"}},
    {u"Ph_All", EditColumns{u"Ph_All"}},
    {u"Ph_Home", EditColumns{u"Ph_Home"}},
    {u"Ph_Work1", EditColumns{u"Ph_Work1"}},
    {u"Ph_Work2", EditColumns{u"Ph_Work2"}},
    {u"ID_Area", EditColumns{u"ID_Area"}},
    {u"ID_Name", EditColumns{u"ID_Name"}},
    {u"ID_Company", EditColumns{u"ID_Company"}},
    {u"ID_Web", EditColumns{u"ID_Web"}},
    {u"ID_EmailL", EditColumns{u"ID_Emails"}},
    {u"ID_Simple", EditColumns{u"ID_Simple"}},
    {u"ID_DetailsL", EditColumns{u"ID_Details"}},
    {u"ID_Date", EditColumns{u"ID_Date"}},
    {u"ID_Other", EditColumns{u"ID_Other"}},
    {u"ID_User", EditColumns{u"ID_User"}},
    {u"ID_Priority", EditColumns{u"Priority"}},
    {u"ID_Product", EditColumns{u"Product"}},
    {u"Editable", EditColumns{u"Editable"}},

    // Reports
    {u"Pname", ListReport{u"Pname"}},
    {u"Pdetails", ListReport{u"Pdetails"}},
    {u"Pcompany", ListReport{u"Pcompany"}},
    {u"Parea", ListReport{u"Parea"}},
    {u"Pweb", ListReport{u"Pweb"}},
    {u"Pemail", ListReport{u"Pemail"}},
    {u"Pdt1", ListReport{u"Pdt1"}},
    {u"Pother", ListReport{u"Pother"}},
    {u"Pphone1", ListReport{u"Pphone1"}},
    {u"ID_PhoneList", LaunchLinkAndSync{Ask::Yes}},
    {u"ID_FamilyTree", LaunchLinkAndSync{Ask::Yes}},
    {u"ID_PocketAddressBook", LaunchLinkAndSync{Ask::Yes}},
    {u"ID_Full", LaunchLinkAndSync{Ask::Yes}},
    {u"ID_Bday", LaunchLinkAndSync{Ask::Yes}},
    {u"ID_Anniv", LaunchLinkAndSync{Ask::Yes}},
    {u"ID_Email", LaunchLinkAndSync{Ask::Yes}},
    {u"ID_Letter1", LaunchLinkAndSync{Ask::Yes}},
    {u"Letter", LaunchLinkAndSync{Ask::Yes}},
    {u"GenerateTextFile", TextReport{true}},
    {u"GenerateTextFilewolabel", TextReport{false}},

    // Launch pad
    {u"ID_Add", OpenLaunchPad{u"From Add"}},
    {u"ID_Add2", OpenLaunchPad{u"From Add"}},
    {u"ID_Data", OpenLaunchPad{u"From Transfer"}},
    {u"ID_Setup", OpenLaunchPad{u"From Setup"}},
    {u"ID_Letter12", OpenLaunchPad{u"From Letter"}},
    {u"E=Mail", OpenLaunchPad{u"From Email"}},
    {u"ID_View", OpenLaunchPad{u"From View"}},
    {u"PhoneDialer", OpenLaunchPad{u"From Telephone"}},
    {u"ID_Print1", OpenLaunchPad{u"From Print"}},
    {u"ID_Fun", OpenLaunchPad{u"From Function"}},
    {u"AnnivOther", OpenLaunchPad{u"From Function Other"}},
    {u"EditDD", OpenLaunchPad{u"From Edit"}},
    {u"ID_ViewOther", OpenLaunchPad{u"From View Other"}},

    // The other programs of the suite
    {u"Diary", StartSibling{.program = Scheduler, .keystroke = u"^"}},
    {u"Pr-CellPhone", StartSibling{.program = PersonalRecords, .key = u"userdefined1"}},
    {u"Pr-PhoneCard", StartSibling{.program = PersonalRecords, .key = u"userdefined1"}},
    {u"Pr-ClubMembership", StartSibling{.program = PersonalRecords, .key = u"userdefined1"}},
    {u"Info-Cities", StartSibling{.program = Utility, .key = u"fomwinfo1"}},
    {u"Contacts", Inert{}},

    // Help and the program itself
    {u"about", OpenScreen{u"frmAbout"}},
    {u"ProgramView", OpenScreen{u"FrmPrgView"}},
    // Kept: the tool named "help" shows the program view; the help file is behind "BHelp".
    {u"ID_Help", OpenScreen{u"FrmPrgView"}},
    {u"BHelp", OpenHelpFile{}},
    {u"OrvaneSuiteProductDetails", OpenFile{ProductPage}},
    {u"Close", EndProgram{}},
    {u"Exit", CloseFrame{}},

    // Kept: these give the page the room of the list bar, and open nothing.
    {u"ID_Medium", HideListBar{}},
    {u"ID_Short", HideListBar{}},
    {u"ID_Basic2", HideListBar{}},
    {u"Filter", HideListBar{}},
    {u"ID_AddGray", HideListBar{}},
    {u"ID_NoteView", HideListBar{}},
    {u"ID_AddBasic1", HideListBar{}},
    {u"ID_AddBasic2", HideListBar{}},
    {u"List", HideListBar{}},
    {u"ESetup", HideListBar{}},
    {u"ID_ListViews", HideListBar{}},
    {u"InternationalCities", HideListBar{}},
    {u"IndianCities", HideListBar{}},

    // Openers of a drop-down
    {u"LTree", DropDown{u"ID_List"}},
    {u"ID_Add1", DropDown{u"ID_AddBasic"}},
    {u"DList", DropDown{u"ID_List"}},
};

constexpr Command Keys[] = {
    {u"frmaddfullrptview", OpenScreen{u"FrmAddFullRptView"}},
    {u"frmselector1", OpenScreen{u"frmSelector1"}},
    {u"frmdialer", OpenScreen{u"FrmDialer"}},
    // Kept: this key misleads, it is the same screen as "emaillist".
    {u"formemail", OpenScreen{u"FrmEmail"}},
    {u"frmletter", OpenScreen{u"FrmLetter"}},
    {u"frmbday", OpenScreen{.form = u"frmbday", .shown = Shown::Modally}},
    {u"frmfamily", OpenScreen{u"frmfamily"}},
    {u"frmassoparty", OpenScreen{.form = u"FrmAssoParty", .shown = Shown::Modally}},
    // Kept: both keys open the basic form, not the detailed one.
    {u"formmain1", OpenScreen{u"FormMain1"}},
    {u"formmain", OpenScreen{u"FormMain1"}},
    {u"formnotebook", OpenScreen{u"FormNotebook"}},
    {u"frmcontacts", OpenScreen{.form = u"FrmContacts", .shown = Shown::Modally}},
    {u"frmselector", OpenScreen{u"frmSelector"}},
    {u"formtree2", OpenScreen{u"FormTree2"}},
    {u"frmphlist", OpenScreen{u"FrmPhList"}},
    {u"frmphsearch", OpenScreen{u"FrmPhSearch"}},
    {u"frmemilrec", OpenScreen{u"FrmEmilRec"}},
    {u"frmgmail", OpenScreen{u"Frmgmail"}},
    {u"formmaillist", OpenScreen{u"FormMailList"}},
    {u"frmarrangecateg", OpenScreen{u"frmArrangeCateg"}},
    // Kept: no screen. It once reopened the data database, which stays open here.
    {u"payee", Inert{}},
    {u"view basic", OpenScreen{.form = u"frmSelector", .listBar = ListBar::Hidden}},
    {u"formuseredit", OpenScreen{u"FormUserEdit"}},
    {u"fullview", OpenScreen{u"FullView"}},
    {u"turboadd", OpenScreen{u"TurboAdd"}},
    {u"fulllist", OpenScreen{u"FrmListDetails"}},
    {u"previouscall", OpenScreen{u"Form1"}},
    {u"smsbyemail", OpenScreen{u"frmSms"}},
    {u"bulkemail", OpenScreen{u"frmImportEmail"}},
    {u"vcf", OpenScreen{u"FrmVCF"}},
    {u"expaddbook", OpenScreen{u"FrmAddExp"}},
    {u"addlist", OpenScreen{u"frmMultiAdd"}},
    {u"emaillist", OpenScreen{u"FrmEmail"}},
    {u"emailsavetodb", OpenScreen{u"FrmEmailtoDb"}},
    {u"businessadd", OpenScreen{u"FormMainBusiness"}},
    {u"simpleletterviewer", OpenScreen{u"FrmLetterRecord"}},
    {u"simpleemailcreator", OpenScreen{u"FrmEmailCr"}},
    {u"businesslettercreator", BusinessLetter},
    {u"outlookexpressemails", OpenScreen{.form = u"FrmoutlookExp", .shown = Shown::Modally}},
};

constexpr Command ShortCodes[] = {
    {u"setupbook", OpenScreen{u"FrmOthers"}},
    {u"setupfun", OpenScreen{u"FormLtrSetUp"}},
    {u"prg", OpenScreen{u"FrmPrgView"}},
    {u"productdetails", OpenFile{ProductPage}},
    {u"help", OpenHelpFile{}},
    {u"imp1", LaunchLinkAndSync{}},
    {u"imp2", OpenScreen{u"FrmvCard"}},
    {u"imp3", OpenScreen{u"FormInbox"}},
    {u"a", OpenScreen{u"FrmCntPrgView"}},
    {u"b", OpenScreen{u"FrmContacts"}},
    {u"bb", OpenScreen{u"FullViewWeb"}},
    {u"c", OpenScreen{u"FullView"}},
    {u"d", OpenScreen{u"FormNotebook"}},
    {u"dd", OpenScreen{u"FrmBookView"}},
    {u"e", OpenScreen{.form = u"FrmAddFullRptView", .page = u"MDI"}},
    {u"f", OpenScreen{.form = u"frmSelector", .page = u"Full"}},
    {u"g", OpenScreen{u"frmSelector1"}},
    {u"gcat", OpenScreen{.form = u"frmSelector1", .page = u"Category"}},
    {u"gpics", OpenScreen{.form = u"frmSelector1", .page = u"Picture"}},
    {u"gad", OpenScreen{u"frmSelector1"}},
    {u"h", OpenScreen{u"FrmListDetails"}},
    {u"i", OpenScreen{u"FormPalmPilot"}},
    {u"j", EditColumns{u"ID_Name"}},
    {u"k", OpenScreen{u"FrmContacts"}},
    {u"l", OpenScreen{u"FormMain1"}},
    {u"m", OpenScreen{u"FormMain"}},
    {u"n", OpenScreen{u"FormMainBusiness"}},
    {u"o", OpenScreen{u"frmMultiAdd"}},
    {u"p", OpenScreen{u"TurboAdd"}},
    {u"q", OpenScreen{u"FormMain"}},
    {u"r", OpenScreen{u"FrmAddCntPrgView"}},
    {u"s", OpenScreen{u"FormListEdit"}},
    {u"t", OpenScreen{u"Frmvcat"}},
    {u"u", OpenScreen{u"frmvpriority"}},
    {u"v", OpenScreen{u"frmArrangeCateg"}},
    {u"arrfav", OpenScreen{u"frmfavrt"}},
    {u"bd", birthdays(u"Birthday")},
    {u"an", birthdays(u"Anniversary")},
    {u"expbday", birthdays(u"Birthday")},
    {u"zo", OpenScreen{u"frmzodiac"}},
    {u"av", OpenScreen{u"FormZodiacYr"}},
    {u"linked", ShowLinkedRecords{}},
    {u"ftree", OpenScreen{u"frmfamily"}},
    {u"association", OpenScreen{u"FrmAssoParty"}},
    {u"exp1", LaunchLinkAndSync{}},
    {u"exp2", LaunchLinkAndSync{}},
    {u"exp3", LaunchLinkAndSync{}},
    {u"exp4", LaunchLinkAndSync{}},
    {u"exp5", LaunchLinkAndSync{}},
    {u"exp6", LaunchLinkAndSync{}},
    {u"editfull", OpenScreen{u"FullView"}},
    {u"rep", OpenScreen{u"FrmPhReplacer"}},
    {u"lfull", OpenScreen{.form = u"frmSelector", .page = u"Full"}},
    {u"lbrief", OpenScreen{.form = u"frmSelector", .page = u"Brief"}},
    {u"lpersonal", OpenScreen{.form = u"frmSelector", .page = u"Personal"}},
    {u"lbusiness", OpenScreen{.form = u"frmSelector", .page = u"Business"}},
};

/// The labels are stored with the rows of the launch pad (data/seed/ov_cnt_launch.csv), so they are not
/// translated.
constexpr Command LaunchPad[] = {
    // From Setup
    {u"Address Book", OpenScreen{u"FrmOthers"}},
    {u"Function", OpenScreen{u"FormLtrSetUp"}},

    // From Add
    {u"Quick Add", OpenScreen{u"FrmContacts"}},
    {u"Basic Add", OpenScreen{u"FormMain1"}},
    {u"Detailed Add", OpenScreen{u"FormMain"}},
    {u"Business Add", OpenScreen{u"FormMainBusiness"}},
    {u"List Add", OpenScreen{u"frmMultiAdd"}},
    {u"Turbo Add", OpenScreen{u"TurboAdd"}},
    {u"Add Outlook Address Book", OpenScreen{u"Frmaddtooutlook"}},
    {u"Outlook Express Address Book", OpenScreen{u"FrmAddressbook"}},
    {u"Record Duplicator", OpenScreen{u"FrmDuplicator"}},

    // From Edit
    {u"Edit Single", OpenScreen{u"FormMain"}},
    {u"Edit Multiple", OpenScreen{u"FormListEdit"}},
    {u"Edit Full", OpenScreen{u"FullView"}},
    {u"Edit List", EditColumns{u"ID_Name"}},
    {u"Replace(Phones,Codes & City names)", OpenScreen{u"FrmPhReplacer"}},
    {u"Arrange Category List", OpenScreen{u"Frmvcat"}},
    {u"Arrange Priority List", OpenScreen{u"frmvpriority"}},
    {u"Arrange Contacts", OpenScreen{u"frmArrangeCateg"}},
    {u"Arrange Internet Favorites", OpenScreen{u"frmfavrt"}},
    {u"Arrange Letters", ArrangeLetters},
    {u"Arrange Email", ArrangeEmails},

    // From View
    {u"Quick View", OpenScreen{u"FrmContacts"}},
    {u"Smart View", OpenScreen{u"FullViewWeb"}},
    {u"Full View", OpenScreen{u"FullView"}},
    {u"List View", OpenScreen{u"FrmFullGridview"}},
    {u"Diary View", OpenScreen{u"FormNotebook"}},
    {u"Diary Single Page", OpenScreen{u"FrmBookView"}},
    {u"Address Book List", OpenScreen{u"FrmAddFullRptView"}},
    {u"Full List", OpenScreen{u"FrmListDetails"}},

    // From View Other
    {u"Detail Page", detailedView(u"Detail")},
    {u"Full Page", detailedView(u"Full")},
    {u"Brief Page", detailedView(u"Brief")},
    {u"Personal Page", detailedView(u"Personal")},
    {u"Business Page", detailedView(u"Business")},
    {u"Category, Location and Picture View", OpenScreen{u"frmSelector1"}},
    {u"Search", OpenScreen{u"FormSearch"}},
    {u"Advanced Search", OpenScreen{u"frmGridCombo"}},
    {u"Summary", OpenScreen{u"frmcontsum"}},
    {u"Linked Records", ShowLinkedRecords{}},

    // From Function
    {u"Family Tree", OpenScreen{u"frmfamily"}},
    {u"Associations and Clubs", OpenScreen{u"FrmAssoParty"}},
    {u"City Utility", OpenScreen{u"FrmCityUtil"}},
    {u"Text File with Labels", TextReport{true}},
    {u"Text File without Labels", TextReport{false}},
    {u"Restore from a Backup", Restore{}},
    {u"Product Details", OpenFile{ProductPage}},

    // From Function Other
    {u"Birthday List", birthdays(u"Birthday")},
    {u"Anniversary List", birthdays(u"Anniversary")},
    {u"Simple Birthday Viewer", OpenScreen{u"FrmBirthday"}},
    {u"Birthday Year View", OpenScreen{u"FormAviewbday"}},
    {u"Zodiac Year View", OpenScreen{u"FormZodiacYr"}},
    {u"Zodiac Signs", OpenScreen{u"frmzodiac"}},

    // From Telephone
    {u"Phone Dialer", OpenScreen{u"FrmDialer"}},
    {u"Phone List Maker", OpenScreen{u"FrmPhList"}},
    {u"Phone Search", OpenScreen{u"FrmPhSearch"}},
    {u"Previous Calls", OpenScreen{u"Form1"}},
    {u"Communicator", OpenScreen{u"FrmCall"}},
    {u"City Telephone Codes", OpenScreen{u"FrmStdcode"}},
    {u"Indian City, Pin and STD Codes", OpenScreen{u"frmstd"}},
    {u"International City Codes", OpenScreen{u"Frmintstd"}},
    {u"Phone Text Format", OpenScreen{u"FrmTelTxt"}},

    // From Letter
    {u"Letter Creator", OpenScreen{u"FrmLetter"}},
    {u"Business Letter Creator", BusinessLetter},
    {u"Letter Record", LetterRecord},
    {u"Simple Letter Viewer", OpenScreen{u"FrmLetterRecord"}},
    {u"Save Letters", OpenScreen{u"frmgmail1"}},
    {u"Letter Summary", OpenScreen{u"FrmLettSum"}},
    {u"Mailing List", OpenScreen{u"FormMailList"}},
    {u"Letter Scanner", OpenScreen{u"frmScan"}},

    // From Email
    {u"Email Creator", OpenScreen{u"FormEmail"}},
    {u"Simple Email Creator", OpenScreen{u"FrmEmailCr"}},
    {u"Email List", OpenScreen{u"FrmEmail"}},
    {u"Email Record", EmailRecord},
    {u"Timed Emails", OpenScreen{u"frmTimedEmail"}},
    {u"SMS by Email", OpenScreen{u"frmSms"}},
    {u"Email Address Update", OpenScreen{u"FrmEmailAddupdate"}},
    {u"Bulk Email Addresses", OpenScreen{u"frmImportEmail"}},
    {u"Outlook Inbox", OpenScreen{u"FormInbox"}},
    {u"Outlook Emails to RTF", OpenScreen{u"FormEmailToRtf"}},
    {u"Email Save to Database", OpenScreen{u"FrmEmailtoDb"}},
    {u"Outlook Express Emails", OpenScreen{u"FrmoutlookExp"}},

    // From Transfer
    {u"Import Contacts", LaunchLinkAndSync{}},
    {u"Import and Export with Outlook", LaunchLinkAndSync{}},
    {u"Visiting Cards to Contacts", OpenScreen{u"FrmvCard"}},
    {u"Import vCards", OpenScreen{u"FormCardImport"}},
    {u"Export to VCF", OpenScreen{u"FrmVCF"}},
    {u"Export Address Book", OpenScreen{u"FrmAddExp"}},
    {u"Export Email Addresses", OpenScreen{u"FrmEmailExp"}},
    {u"Export to Access", StartSibling{.program = LinkAndSync}},
    {u"Palm Pilot", OpenScreen{.form = u"FormPalmPilot", .page = u"Palm"}},

    // From Print
    {u"Report - Address Book", RequestReport{u"Address Book"}},
    {u"Report - Address Book-Short", RequestReport{u"Address Book-Short"}},
    {u"Report - Anniversaries", RequestReport{u"Anniversaries"}},
    {u"Report - Birthday", RequestReport{u"Birthday"}},
    {u"Report - Emails", RequestReport{u"Emails"}},
    {u"Report - Family Tree", RequestReport{u"Family Tree"}},
    {u"Report - Letter Record", RequestReport{u"Letter Record"}},
    {u"Report - Phone List", RequestReport{u"Phone List"}},
};

constexpr Command DropDowns[] = {
    {u"ID_Letter12", DropDown{u"ID_Letter"}},
    {u"ID_Add", DropDown{u"ID_AddM"}},
    {u"ID_Data", DropDown{u"Data"}},
    {u"ID_Phone", DropDown{u"ID_PhoneDialer"}},
    {u"E=Mail", DropDown{u"ID_EMails"}},
    {u"Address", DropDown{u"ID_AddBook"}},
    // Kept: the row above has taken this group already.
    {u"ID_Data", DropDown{u"ID_DataTransfer"}},
    {u"ID_Fun", DropDown{u"Functions"}},
    {u"ID_Setup1", DropDown{u"Setup"}},
    {u"ID_Setup", DropDown{u"Setup"}},
    {u"Lookup", DropDown{u"ID_Lookup"}},
    {u"ID_BirthdayList", DropDown{u"BirthdayList1"}},
    {u"AddBasic", DropDown{u"ID_AddBasic"}},
    {u"ID_View", DropDown{u"ID_AddBook"}},
    {u"ID_Print1", DropDown{u"ID_Report"}},
    {u"PhoneDialer", DropDown{u"ID_PDialer"}},
    // Kept: the page is spelled so.
    {u"ID_Information", DropDown{u"ID_Inormation"}},
    {u"ID_Help", DropDown{u"Help"}},
    {u"DList", DropDown{u"ID_List"}},
    {u"ProgramDrop", DropDown{u"Programs"}},
};

constexpr QStringView PersonalTools[] = {
    u"BirthdayList",
    u"Ann",
    u"Btask",
    u"ZAV",
    u"BAV",
    u"FamilyTree",
    u"Linked",
    u"ID_Zodiac",
    u"ID_Bday",
    u"ID_Anniv",
    u"ID_FamilyTree",
    u"PersonalView",
    // Named here only: no command has this id yet.
    u"ID_FamilyDetails",
    u"PhoneDialer",
    u"AnnivOther",
};

constexpr QStringView HomeCountryTools[] = {u"CitypinStd", u"CityUtility"};

const Action* find(std::span<const Command> commands, QStringView id)
{
    const auto found = std::ranges::find(commands, id, &Command::id);
    return found == commands.end() ? nullptr : &found->action;
}

} // namespace

const Action* toolAction(QStringView toolId)
{
    return find(Tools, toolId);
}
const Action* keyAction(QStringView key)
{
    return find(Keys, key);
}
const Action* shortCodeAction(QStringView code)
{
    return find(ShortCodes, code);
}
const Action* launchPadAction(QStringView label)
{
    return find(LaunchPad, label);
}
const Action* dropDownAction(QStringView group)
{
    return find(DropDowns, group);
}

std::span<const Command> toolCommands()
{
    return Tools;
}
std::span<const Command> keyCommands()
{
    return Keys;
}
std::span<const Command> shortCodeCommands()
{
    return ShortCodes;
}
std::span<const Command> launchPadCommands()
{
    return LaunchPad;
}
std::span<const Command> dropDownCommands()
{
    return DropDowns;
}

std::span<const QStringView> personalTools()
{
    return PersonalTools;
}
std::span<const QStringView> homeCountryTools()
{
    return HomeCountryTools;
}

} // namespace core
