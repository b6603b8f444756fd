// The tools for records in the language of keys.
#include "records/RecordChecker.h"
#include "tests/app/TranslatedPack.h"

namespace Translated {

std::vector<Scene> RecordScenes() {
  return {
      {"the records",
       [](Player& player) {
         const Lines menu{"<XGame>", "<GRecordViewer>"};
         player.user.ChoosesMenu(menu);
         player.machine.files.Put(Game + "\\highscore.cfg", "a=3661000\r\nb=7322000\r\n");
         player.user.ChoosesMenu(menu);
         player.Looks();
         player.user.Presses("Down");
         player.Looks();
         for (const char* button : {"<DeleteRecordButton>", "<ResetButton>"}) {
           player.user.AnswersNo();
           player.Clicks(button);
         }
         player.user.Presses("Escape");
       },
       {"window <RecordViewerTitle>: [<TracksPrompt>, list, a, 1 of 2 / a / b] "
        "[<TimePrompt>, edit, read only, 1 <Hour>, 1 <Minute>, 1 <Second>] "
        "[<DeleteRecordButton>, button] [<ResetButton>, button] [<CclButton>, button]",
        "window <RecordViewerTitle>: [<TracksPrompt>, list, b, 2 of 2 / a / b] "
        "[<TimePrompt>, edit, read only, 2 <Hours>, 2 <Minutes>, 2 <Seconds>] "
        "[<DeleteRecordButton>, button] [<ResetButton>, button] [<CclButton>, button]",
        "box <NoRecordsTitle>: <NoRecordsText>",
        "box <DeleteRecordWarningTitle>: <DeleteRecordWarningText>",
        "box <ClearRecordsWarningTitle>: <ClearRecordsWarningText>"}},

      {"the record file",
       [](Player& player) {
         player.user.ChoosesMenu({"<XGame>", "<GCheckRecordFile>"});
         for (const char* bytes : {"a", "a=x", "a=1"}) player.ChecksRecords(bytes);
       },
       {"box <RecordFileNonexistentTitle>: <RecordFileNonexistentText>",
        "box <SyntaxError>: <Line> 1, <CSFInvalidFormat>",
        "box <SyntaxError>: <Line> 1, <CSFInvalidValue>",
        "box <RecordFileOKTitle>: <RecordFileOKText>"}},

      {"what the checker of records says besides, which no box shows",
       [](Player& player) {
         std::string message;
         for (const char* path : {"C:\\nothing.cfg", "C:\\good.cfg"}) {
           player.machine.files.Put("C:\\good.cfg", "a=1\r\n");
           CheckRecordFile(path, message);
           player.shown.push_back("message " + message);
         }
       },
       {"message <CSFNonexistentRecordsFile>", "message <CSFFileOK>"}},
  };
}

}  // namespace Translated
