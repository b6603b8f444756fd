// The texts of the server list, the address viewer and the package downloader.
#pragma once

#include "base/LangText.h"

struct InternetTextTable {
  // The server list.
  LangText SelectServerTitle{"SelectServerTitle", "Select Server"};
  LangText ClearListButton{"ClearListButton", "&Clear List"};
  LangText DeleteEntryButton{"DeleteEntryButton", "&Delete IP"};
  LangText AddToListButton{"AddToListButton", "&Add to IP List"};
  LangText IPTextPrompt{"IPTextPrompt", "IP:"};
  LangText SelectIPPrompt{"SelectIPPrompt", "IP List:"};
  LangText IPAlreadyExists{"IPAlreadyExists",
                           "The IP address you wish to save already exists in your IP list."};
  LangText IPEnterFriendlyNameText{"IPEnterFriendlyNameText",
                                   "Please enter a name for this IP address."};
  LangText IPEnterFriendlyNameTitle{"IPEnterFriendlyNameTitle", "Name:"};
  LangText IPNoNameEnteredText{"IPNoNameEnteredText",
                               "No name was associated with this IP address. The IP address will "
                               "be used as the associated name."};
  LangText IPNoNameEnteredTitle{"IPNoNameEnteredTitle", "Warning"};
  LangText IPAddedText{"IPAddedText", "IP address added to list."};
  LangText IPAddedTitle{"IPAddedTitle", "Success"};
  LangText IPChangedText1{"IPChangedText1", "IP address"};
  LangText IPChangedText2{"IPChangedText2", "will now be used when playing Skidrun2."};
  LangText IPChangedTitle{"IPChangedTitle", "Success"};
  LangText ConfirmDeleteIPText{"ConfirmDeleteIPText",
                               "Are you sure you wish to delete the IP address"};
  LangText ConfirmDeleteIPTitle{"ConfirmDeleteIPTitle", "Confirm delete"};
  LangText IPDelNonexistentError{
      "IPDelNonexistentError",
      "There was an error deleting the IP address because it doesn't exist."};
  LangText IPDelFileAccessError{"IPDelFileAccessError",
                                "There was an error deleting the IP address because the IP list "
                                "can't currently be accessed."};
  LangText IPDelOtherError{
      "IPDelOtherError",
      "There was an error deleting the IP address. The cause of this error is unknown."};
  LangText IPDelError{"IPDelError", "Error deleting IP"};
  LangText ClearIPListText{"ClearIPListText",
                           "Are you sure you wish to completely clear the IP list?"};
  LangText ClearIPListTitle{"ClearIPListTitle", "Confirm List Removal"};

  // What may be wrong with what was fetched.
  LangText AddressPageNotUnderstood{
      "AddressPageNotUnderstood",
      "The web page that tells your IP address could not be understood."};
  LangText DownloadTooLarge{"DownloadTooLarge", "The file that was fetched is too large."};

  // The public address viewer.
  LangText NoConnection{"NoConnection",
                        "It seems that you don't have an active internet connection at present. "
                        "Please connect to the internet and try again."};
  LangText PIPVTitle{"PIPVTitle", "Personal IP Viewer"};
  LangText ExitPIPVButton{"ExitPIPVButton", "E&xit Viewer"};
  LangText CopyIPButton{"CopyIPButton", "&Copy IP"};
  LangText PIPVPrompt{"PIPVPrompt", "IP:"};

  // The package downloader. The kinds of add-ons are the same in every language.
  LangText Car = FixedText("Car");
  LangText Track = FixedText("Track");
  LangText Language = FixedText("Language");
  LangText PackageDownloaderTitle{"PackageDownloaderTitle", "SK2 Package Downloader"};
  LangText PackageDownloaderText{"PackageDownloaderText", "Select SK2 component:"};
  LangText FileListTitle{"FileListTitle", "Download directory"};
  LangText FileListText{"FileListText", "Select file:"};
  LangText DownloadButton{"DownloadButton", "&Download and Unpack"};
  LangText SelectComponentButton{"SelectComponentButton", "&Return to Component Selection"};
  LangText DownloadingTitle{"DownloadingTitle", "Downloading..."};
  LangText UnpackingTitle{"UnpackingTitle", "Unpacking..."};
  LangText DataRetrievalErrorText1{"DataRetrievalErrorText1",
                                   "Error retrieving data from server. Please contact"};
  LangText DataRetrievalErrorText2{"DataRetrievalErrorText2", "if this error continues."};
  LangText DataRetrievalErrorTitle{"DataRetrievalErrorTitle", "Retrieval error"};
  LangText CarEnumerationErrorText{
      "CarEnumerationErrorText",
      "Could not enumerate car list. The following error was encountered while reading:"};
  LangText CarEnumerationErrorTitle{"CarEnumerationErrorTitle", "Error"};
  LangText TrackEnumerationErrorText{
      "TrackEnumerationErrorText",
      "Could not enumerate track list. The following error was encountered while reading:"};
  LangText TrackEnumerationErrorTitle{"TrackEnumerationErrorTitle", "Error"};
  LangText LangEnumerationErrorText{
      "LangEnumerationErrorText",
      "Could not enumerate language list. The following error was encountered while reading:"};
  LangText LangEnumerationErrorTitle{"LangEnumerationErrorTitle", "Error"};
  LangText LstInvalidComponentRecordFormat{
      "LstInvalidComponentRecordFormat",
      "couldn't determine filename, format used does not match required record format."};
  LangText LstNonexistentListFile{"LstNonexistentListFile", "Component list file doesn't exist."};
  LangText FileDownloadErrorText1{"FileDownloadErrorText1", "The file"};
  LangText FileDownloadErrorText2{
      "FileDownloadErrorText2",
      "could not be accessed from server. If the error continues, please contact"};
  LangText FileDownloadErrorTitle{"FileDownloadErrorTitle", "Download error"};
  LangText DownloadSuccessfulText{"DownloadSuccessfulText",
                                  "File successfully downloaded and installed."};
  LangText DownloadSuccessfulTitle{"DownloadSuccessfulTitle", "Download completed."};
  LangText InvalidComponentText{"InvalidComponentText",
                                "Couldn't download file. Invalid component index."};
  LangText InvalidComponentTitle{"InvalidComponentTitle", "Error"};
};
inline constexpr InternetTextTable InternetTexts;
