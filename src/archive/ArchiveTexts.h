// Why an archive is not unpacked or written, as the user is told.
#pragma once

#include "base/LangText.h"

struct ArchiveTextTable {
  LangText ArchiveNotAZip{"ArchiveNotAZip", "This is not a zip archive."};
  LangText ArchiveDamaged{"ArchiveDamaged", "The archive is damaged."};
  LangText ArchiveEncrypted{"ArchiveEncrypted", "The archive is protected by a password."};
  LangText ArchiveMethodUnknown{"ArchiveMethodUnknown",
                                "The archive is compressed in a way that cannot be unpacked."};
  LangText ArchiveInSeveralParts{"ArchiveInSeveralParts",
                                 "The archive is only one of several parts."};
  LangText ArchiveTooLarge{"ArchiveTooLarge", "The archive says that it holds too much."};
  LangText ArchiveLeadsOutside{
      "ArchiveLeadsOutside",
      "The archive is not safe: it would put a file outside of the folder that it is for."};
  LangText ArchiveNameNotUsable{"ArchiveNameNotUsable",
                                "The archive holds a file name that cannot be used."};
  LangText ArchiveNameNotInLanguage{
      "ArchiveNameNotInLanguage",
      "The archive holds a file name with letters that the language set in Windows does not have."};
  LangText ArchiveNameTwice{"ArchiveNameTwice",
                            "The archive would have two files or folders of the same name."};
  LangText ArchiveHoldsLink{"ArchiveHoldsLink",
                            "The archive is not safe: it holds a link to another file."};
  LangText ArchiveSourceChanged{"ArchiveSourceChanged",
                                "The file was changed by another program while it was packed."};
};
inline constexpr ArchiveTextTable ArchiveTexts;
