// The texts of the update check and of the automatic-update option.
#pragma once

#include "base/LangText.h"

struct UpdateTextTable {
  LangText GVNotConnected{"GVNotConnected",
                          "Current version information could not be checked because you are not "
                          "connected to the internet."};
  LangText GVNoVersion{"GVNoVersion",
                       "Current version information cannot be checked as there is currently no "
                       "version data available for this product."};
  LangText GVNoVersionFile{
      "GVNoVersionFile",
      "Current version information cannot be checked as there is currently no version data "
      "available. This will affect all software that uses the update check engine."};
  LangText GVInvalidVersionFile{
      "GVInvalidVersionFile",
      "Current version information cannot be checked as the version data file format is invalid."};
  LangText CVInvalidVersion{
      "CVInvalidVersion",
      "Current version information could not be checked because the latest version specified for "
      "this product in the version records file is an invalid version format."};
  LangText NoUpdateAvailable{"NoUpdateAvailable",
                             "You are currently running the latest version of this product."};

  // The About box looks the same key up with a small letter; whichever is written first stays.
  LangText Information{"Information", "Information"};
  LangText UpdateText1{"UpdateText1", "An update is currently available for"};
  LangText CurrentVersion{"CurrentVersion", "Current Version"};
  LangText VersionAvailable{"VersionAvailable", "Version available"};
  LangText UpdateText2{"UpdateText2", "Would you like to update now?"};
  LangText UpdateTitle{"UpdateTitle", "Update"};
  LangText ErrorUpdatingText1{"ErrorUpdatingText1", "There was an error updating"};
  LangText ErrorUpdatingText2{"ErrorUpdatingText2",
                              "The specified file does not exist on the internet."};
  LangText UpdateSignatureMissing{
      "UpdateSignatureMissing",
      "The signature of the update could not be fetched, so the update was not started. Please try "
      "again later."};
  LangText UpdateSignatureWrong{
      "UpdateSignatureWrong",
      "The signature of the update is not right, so the update was not started: the file was "
      "damaged or replaced on its way, or is just being changed on the server. Please try again "
      "later."};
  LangText ErrorUpdatingTitle{"ErrorUpdatingTitle", "Error"};
  LangText AutoUpdate{"AutoUpdate", "Automatic update checks are now turned"};
  LangText On{"On", "on"};
  LangText Off{"Off", "off"};
};
inline constexpr UpdateTextTable UpdateTexts;
