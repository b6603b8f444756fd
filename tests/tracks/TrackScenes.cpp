// The tools for tracks in the language of keys.
#include "tests/app/TranslatedPack.h"

namespace Translated {

std::vector<Scene> TrackScenes() {
  return {
      {"track files",
       [](Player& player) {
         for (const char* bytes : {"x", "0\rx", "0\r0\rx", "13", "0\r4", "0\r0\r1",
                                   "0\r0\r5000\r-1\r2", "0", "0\r0\r5000\rx", "0\r0\r5000\r-1"}) {
           player.ChecksTrack(bytes);
         }
       },
       {"box <SyntaxError>: <Line> 1, (<LineFirstLetter>1<PartFirstLetter>1): "
        "<CTFInvalidTrackCurveFormat>",
        "box <SyntaxError>: <Line> 2, (<LineFirstLetter>2<PartFirstLetter>1): "
        "<CTFInvalidTrackSurfaceTypeFormat>",
        "box <SyntaxError>: <Line> 3, (<LineFirstLetter>3<PartFirstLetter>1): "
        "<CTFInvalidTrackLengthFormat>",
        "box <SyntaxError>: <Line> 1, (<LineFirstLetter>1<PartFirstLetter>1): "
        "<CTFTrackPartOutOfRange> 0 <And> 12.",
        "box <SyntaxError>: <Line> 2, (<LineFirstLetter>2<PartFirstLetter>1): "
        "<CTFTrackSurfaceTypeOutOfRange> 0 <And> 3.",
        "box <SyntaxError>: <Line> 3, (<LineFirstLetter>3<PartFirstLetter>1): "
        "<CTFTrackSectionLengthTooLow> 5000 <OrMore>.",
        "box <SyntaxError>: <Line> 5, (<End>): <CTFWeatherOutOfRange> 0 <Or> 1.",
        "box <SyntaxError>: <Line> 1, (<End>): <NoTrackEnd>",
        "box <Error>: (<General>): C:\\Games\\Skidrun2\\tracks\\a.trk <DoesNotExist>",
        "box <CTFFileOK>: 4 <Lines>, 1 <Parts>, <CTFCheckTrackSuccessful>"}},

      {"a track that is built",
       [](Player& player) {
         player.NewTrack("hill");
         player.Looks();
         player.Clicks("<NewPartButton>");
         player.Looks();
         player.user.Presses("Enter");  // without a length
         player.user.Types("1");
         player.user.Presses("Enter");
         player.user.Types("7000");
         player.user.Presses("Enter");
         player.Looks();
         player.user.AnswersYes();
         player.Clicks("<SaveTrackButton>");
       },
       {"window <TrackmakerTitle>: [<NewPartButton>, button] [<SaveTrackButton>, button] "
        "[<NewTrackButton>, button] [<ExitButton>, button] [<TrackViewer>, list, empty]",
        "window <NewPartTitle>: [<LengthPrompt>, edit] [<SurfacePrompt>, list, <Asphalt>, 1 of 4 / "
        "<Asphalt> / <Gravel> / <Water> / <Sand>] [<CurvePrompt>, list, <Straight>, 1 of 13 / "
        "<Straight> / <EasyLeft> / <Left> / <HardLeft> / <HairpinLeft> / <EasyRight> / <Right> / "
        "<HardRight> / <HairpinRight> / <StraightCrowd> / <StraightOcean> / <StraightRunway> / "
        "<Clock>] [<OKButton>, button] [<CclButton>, button]",
        "window <TrackmakerTitle>: [<NewPartButton>, button] [<SaveTrackButton>, button] "
        "[<NewTrackButton>, button] [<ExitButton>, button] [<TrackViewer>, list, <Straight> "
        "<SectionOn> <Asphalt> <For> 7000 <Units>., 1 of 1 / <Straight> <SectionOn> <Asphalt> "
        "<For> 7000 <Units>.]",
        "box <Error>: <LengthNotNumeric>", "box <Error>: <LengthTooLow> 5000 <OrMore>.",
        "box <WeatherQuestionTitle>: <WeatherQuestionText>",
        "box <TrackCompiledTitle>: <TrackCompiledText>"}},

      {"a track that is there already",
       [](Player& player) {
         player.machine.files.Put(Game + "\\tracks\\hill.trk", "0");
         player.user.AnswersNo();
         player.NewTrack("hill");
       },
       {"box <ReplaceTrackTitle>: <ReplaceTrackText>\r\nC:\\Games\\Skidrun2\\tracks\\hill.trk"}},

      {"a random track",
       [](Player& player) {
         for (const char* parts : {"", "1"}) {
           player.user.ChoosesFile("lake");
           player.user.AnswersNo();
           player.user.TypesInBox("many");
           player.user.TypesInBox(parts);
           if (*parts) player.user.AnswersYes();
           player.user.ChoosesMenu({"<XTrack>", "<TRandom>"});
         }
       },
       {"box <AdventureQuestionTitle>: <AdventureQuestionText>", "box <Error>: <RTMNotNumber>",
        "box <RTMAbortedNoPartsTitle>: <RTMAbortedNoPartsText>",
        "box <AdventureQuestionTitle>: <AdventureQuestionText>", "box <Error>: <RTMNotNumber>",
        "box <WeatherQuestionTitle>: <WeatherQuestionText>",
        "box <RTMFinishedTitle>: <RTMFinishedText>",
        "dialog <SaveTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <SaveTrackDlgTitle>: <TrackFilter> (*.trk)",
        "question <TrackPartsQuestionTitle>: <TrackPartsQuestionText>",
        "question <TrackPartsQuestionTitle>: <TrackPartsQuestionText>",
        "question <TrackPartsQuestionTitle>: <TrackPartsQuestionText>",
        "question <TrackPartsQuestionTitle>: <TrackPartsQuestionText>"}},

      {"the question for the parts of a random track",
       [](Player& player) {
         player.user.ChoosesFile("lake");
         player.user.AnswersNo();
         player.user.WhenWindowOpens("<TrackPartsQuestionTitle>", [&] {
           player.Looks();
           player.user.Presses("Escape");
         });
         player.user.ChoosesMenu({"<XTrack>", "<TRandom>"});
       },
       {"window <TrackPartsQuestionTitle>: [<TrackPartsQuestionText>, edit] [<OKButton>, button] "
        "[<CclButton>, button]",
        "box <AdventureQuestionTitle>: <AdventureQuestionText>",
        "box <RTMAbortedNoPartsTitle>: <RTMAbortedNoPartsText>",
        "dialog <SaveTrackDlgTitle>: <TrackFilter> (*.trk)",
        "question <TrackPartsQuestionTitle>: <TrackPartsQuestionText>"}},
  };
}

}  // namespace Translated
