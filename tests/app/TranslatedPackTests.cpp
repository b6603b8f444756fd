// The whole pack in a language of its own: every text of the tools is a key in angle brackets, so
// that each is seen to be looked up, and to stand where it belongs.
//
// A scene is one thing that a user does, with all that they are shown for it. A new tool adds its
// scenes to Scenes() and takes its texts out of TextsOfToolsToCome().
#include <functional>
#include <set>

#include "base/RuntimeError.h"
#include "base/SharedTexts.h"
#include "game/FileDialogs.h"
#include "internet/InternetTexts.h"
#include "language/LanguageTexts.h"
#include "packaging/PackagingTexts.h"
#include "platform/InterruptedSave.h"
#include "platform/WaveFile.h"
#include "records/RecordChecker.h"
#include "tests/WaveBytes.h"
#include "tests/app/PackStory.h"
#include "tests/vehicles/InternalSoundResources.h"
#include "text/FailureText.h"
#include "text/StringTable.h"
#include "update/UpdateTexts.h"
#include "vehicles/VehicleTexts.h"

namespace {

using Lines = std::vector<std::string>;

const std::string Game = "C:\\Games\\Skidrun2";

// What a scene has to do with, and a few steps that many scenes take.
class Player {
 public:
  explicit Player(Simulated::Machine& itsMachine) : machine(itsMachine), user(itsMachine.user) {}

  // Says what the window in use shows: its title and all controls, with the rows of the lists.
  void Looks() {
    std::string line = "window " + user.SeesWindow() + ":";
    const auto& controls = Platform::ActiveForm()->controls();
    for (size_t tabs = 0; tabs < controls.size(); ++tabs) {
      line += " [" + user.Hears();
      for (const Platform::Control* control : controls) {
        if (!control->HasFocus() || control->kind() != Platform::Control::Kind::ListBox) continue;
        const auto& list = static_cast<const Platform::ListBox&>(*control);
        for (int i = 0; i < list.count(); ++i) line += " / " + list.row(i);
      }
      line += "]";
      user.Presses("Tab");
    }
    shown.push_back(line);
  }

  // The boxes, file dialogs and input boxes that came since this was called last.
  void Collects() {
    const auto& boxes = user.Boxes();
    for (; boxes_ < boxes.size(); ++boxes_) {
      shown.push_back("box " + boxes[boxes_].title + ": " + boxes[boxes_].text);
    }
    const auto& dialogs = user.FileDialogs();
    for (; dialogs_ < dialogs.size(); ++dialogs_) {
      shown.push_back("dialog " + dialogs[dialogs_].title + ": " + dialogs[dialogs_].fileType);
    }
    const auto& modals = user.ModalWindows();
    for (; modals_ < modals.size(); ++modals_) {
      shown.push_back("question " + modals[modals_].title + ": " + modals[modals_].prompt);
    }
  }

  // Presses Tab until the control whose name begins so is heard.
  void GoesTo(const std::string& name) {
    for (int i = 0; i < 12 && !user.Hears().starts_with(name); ++i) user.Presses("Tab");
    EXPECT_THAT(user.Hears(), testing::StartsWith(name));
  }
  void Clicks(const std::string& button) {
    GoesTo(button);
    user.Presses("Enter");
  }

  // Chooses a file of these bytes in the dialog that a menu item opens.
  void Checks(const Lines& menu, const std::string& path, const std::string& bytes) {
    machine.files.Put(path, bytes);
    user.ChoosesFile(path);
    user.ChoosesMenu(menu);
    dialogs_ = user.FileDialogs().size();  // shown by a scene of its own
  }
  void ChecksVehicle(const std::string& bytes) {
    Checks({"<XVehicle>", "<VCheck>"}, Game + "\\vehicles\\a.vhc", bytes);
  }
  void ChecksTrack(const std::string& bytes) {
    Checks({"<XTrack>", "<TCheck>"}, Game + "\\tracks\\a.trk", bytes);
  }
  void ChecksRecords(const std::string& bytes) {
    machine.files.Put(Game + "\\highscore.cfg", bytes);
    user.ChoosesMenu({"<XGame>", "<GCheckRecordFile>"});
  }
  void NewTrack(const std::string& name) {
    user.ChoosesFile(name);
    user.ChoosesMenu({"<XTrack>", "<TNew>"});
    dialogs_ = user.FileDialogs().size();
  }

  void NewVehicle(const std::string& name) {
    user.ChoosesFile(name);
    user.ChoosesMenu({"<XVehicle>", "<VNew>"});
    dialogs_ = user.FileDialogs().size();
  }
  // Presses a key on a row of the vehicle editor, counted from 0.
  void OnRow(int row, const std::string& button) {
    GoesTo("<SelectItem>");
    user.Presses("Home");
    for (int i = 0; i < row; ++i) user.Presses("Down");
    Clicks(button);
  }

  Simulated::Machine& machine;
  Simulated::User& user;
  Lines shown;

 private:
  size_t boxes_ = 0;
  size_t dialogs_ = 0;
  size_t modals_ = 0;
};

struct Scene {
  const char* name;
  std::function<void(Player&)> play;
  Lines shows;
};

void DescribeMenu(const std::vector<Platform::MenuItem*>& items, Lines& lines) {
  for (const Platform::MenuItem* item : items) {
    lines.push_back("menu " + item->caption());
    DescribeMenu(item->items(), lines);
  }
}

// A failure of each kind, as the window in use tells it.
void TellFailures(Player& player) {
  using enum RuntimeError::Number;
  Platform::Form window(FixedText("Tool"));
  Platform::Button Fail(window, {.text = FixedText("Fail"), .isDefault = true, .isCancel = true});
  window.Show();
  const auto fail = [&](std::function<void()> action) {
    Fail.OnClick = std::move(action);
    player.user.Presses("Enter");
  };
  for (const auto number :
       {InvalidCall, Overflow, OutOfMemory, TypeMismatch, FileNotFound, DeviceError, DiskFull,
        PermissionDenied, DiskNotReady, PathFileAccess, PathNotFound, FileAlreadyExists}) {
    fail([number] { throw RuntimeError(number); });
  }
  fail([] { throw RuntimeError(PathFileAccess, RuntimeErrorTexts.NameNotUsable, "C:\\?"); });
  fail([] { throw std::logic_error("never expected"); });
  fail([] { throw RuntimeError(DeviceError, RuntimeErrorTexts.SystemLibrary, "a.dll"); });
  fail([] {
    const RuntimeError failure(DiskFull, RuntimeErrorTexts.SaveHalfDone, "C:\\a");
    throw RuntimeError::WithCopy(failure, "C:\\b");
  });
  // All that may have been done when the system refused.
  bool isStep = false;
  for (const LangText& text : TextsOf(RuntimeErrorTexts)) {
    isStep = isStep || text.key == RuntimeErrorTexts.OpeningFile.key;
    if (text.key == RuntimeErrorTexts.PutBackTitle.key) break;
    if (isStep) fail([text] { throw RuntimeError(DeviceError, "", {text, 5}); });
  }
  window.GoBack();
}

const std::vector<Scene>& Scenes() {
  static const std::vector<Scene> scenes{
      {"the menu bar",
       [](Player& player) { DescribeMenu(Platform::MainForm().menus(), player.shown); },
       {"menu <XFile>",
        "menu <FClose> (Alt+F4)",
        "menu <XVehicle>",
        "menu <VNew> (CTRL+N)",
        "menu <VCheck> (CTRL+C)",
        "menu <VPackage> (CTRL+P)",
        "menu <XTrack>",
        "menu <TNew> (CTRL+N)",
        "menu <TRandom>",
        "menu <TCheck> (CTRL+C)",
        "menu <TPackage> (CTRL+P)",
        "menu <XLanguage>",
        "menu <LChangeLang>",
        "menu <XInternet>",
        "menu <IServerSelect>",
        "menu <IPersonalIPViewer>",
        "menu <IPackageDownloader>",
        "menu <XGame>",
        "menu <GRecordViewer>",
        "menu <GCheckRecordFile>",
        "menu <XOptions>",
        "menu <OAutoUpdate>",
        "menu <XHelp>",
        "menu <HViewDocs>",
        "menu <HWebsites>",
        "menu &Gloamworks",
        "menu &Orvane Interactive",
        "menu <HCheckForUpdates>",
        "menu <HAbout>"}},

      {"the choosers",
       [](Player& player) {
         for (const char* shortcut : {"Ctrl+N", "Ctrl+P", "Ctrl+C"}) {
           player.user.Presses(shortcut);
           player.Looks();
           player.user.Presses("Escape");
         }
       },
       {"window <NewWhatTitle>: [<NewWhatPrompt>, list, <Vehicle>, 1 of 2 / <Vehicle> / <Track>] "
        "[<OKButton>, button] [<CclButton>, button]",
        "window <PackageWhatTitle>: [<PackageWhatPrompt>, list, <Vehicle>, 1 of 2 / <Vehicle> / "
        "<Track>] [<OKButton>, button] [<CclButton>, button]",
        "window <CheckWhatTitle>: [<CheckWhatText>, list, <Vehicle>, 1 of 3 / <Vehicle> / <Track> "
        "/ <RecFile>] [<OKButton>, button] [<CclButton>, button]"}},

      {"a tool that is still to come",
       [](Player& player) {
         player.user.Presses("Ctrl+P");
         player.user.Presses("Enter");
       },
       {"box <NotAvailableTitle>: <NotAvailableText>"}},

      {"the file dialogs",
       [](Player& player) {
         const FileDialogs& all = SharedDialogs();
         for (const auto* dialog :
              {&all.OpenWav, &all.SaveTrack, &all.OpenTrack, &all.OpenVehicle, &all.SaveVehicle}) {
           player.shown.push_back("dialog " + dialog->title + ": " + dialog->fileType);
         }
       },
       {"dialog <OpenWavDlgTitle>: <OpenWavDlgFilter> (*.wav)",
        "dialog <SaveTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <OpenTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)",
        "dialog <SaveVehicleDlgTitle>: <VehicleFilter> (*.vhc)"}},

      {"dialogs that are left",
       [](Player& player) {
         for (const Lines& menu : {Lines{"<XVehicle>", "<VCheck>"}, Lines{"<XTrack>", "<TCheck>"},
                                   Lines{"<XTrack>", "<TNew>"}, Lines{"<XTrack>", "<TRandom>"}}) {
           player.user.CancelsFileDialog();
           player.user.ChoosesMenu(menu);
         }
       },
       {"box <VehicleNoFileErrorTitle>: <VehicleNoFileErrorText>",
        "box <CTNoFileTitle>: <CTNoFileText>", "box <TMAbortedNoFileTitle>: <TMAbortedNoFileText>",
        "box <RTMAbortedNoFileTitle>: <RTMAbortedNoFileText>",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)",
        "dialog <OpenTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <SaveTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <SaveTrackDlgTitle>: <TrackFilter> (*.trk)"}},

      {"vehicle files",
       [](Player& player) {
         for (const char* bytes : {"x", "Skidrun=1", "hornsound=x", "skidrun=x", "steeringfactor=0",
                                   "haswipers=2", "skidrun=99999999999", "skidrun=1"}) {
           player.ChecksVehicle(bytes);
         }
       },
       {"box <SyntaxErrorTitle>: <Line> 1, <CVFInvalidSyntax>",
        "box <SyntaxErrorTitle>: <Line> 1, <CVFInvalidVariable1> (Skidrun). <CVFInvalidVariable2>",
        "box <SyntaxErrorTitle>: <Line> 1, <CVFNonexistentSoundFile1> "
        "C:\\Games\\Skidrun2\\vehicles\\x <CVFNonexistentSoundFile2>",
        "box <SyntaxErrorTitle>: <Line> 1, <CVFInvalidValue>",
        "box <SyntaxErrorTitle>: <Line> 1, <CVFSteeringFactorOutOfRange> 1 <And> 100.",
        "box <SyntaxErrorTitle>: <Line> 1, <CVFHasWipersOutOfRange> 0 <Or> 1.",
        "box <Error>: <CVFNonexistentVhcFile>", "box <VehicleFileOKMSGTitle>: <CVFNoError>"}},

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

      {"the vehicle editor",
       [](Player& player) {
         player.NewVehicle("rocket");
         player.Looks();
         player.user.AnswersYes();
         player.OnRow(13, "<SetButton>");
         player.user.AnswersYes();
         player.OnRow(1, "<SetButton>");
         player.Looks();
         player.user.Presses("Enter");
         player.user.Presses("End");
         player.Looks();
         player.user.AnswersNo();
         player.OnRow(13, "<SetButton>");
         player.user.Presses("End");
         player.shown.push_back(player.user.Hears());
         player.Clicks("<SaveCarButton>");
       },
       {"window <NewCarTitle>: [<SelectItem>, list, Engine Sound: <NotSet>, 1 of 14 / Engine "
        "Sound: <NotSet> / Throttle Sound: <NotSet> / Ignition Sound: <NotSet> / Horn Sound: "
        "<NotSet> / Acceleration: <NotSet> / Deceleration: <NotSet> / Top Speed: <NotSet> / Engine "
        "Idle Frequency: <NotSet> / Engine Top Speed Frequency: <NotSet> / Engine Gear Shift "
        "Frequency: <NotSet> / Number of Gears: <NotSet> / Steering: <NotSet> / Steering Factor: "
        "<NotSet> / Wipers: <NotSet>] [<SetButton>, button] [<SaveCarButton>, button] "
        "[<TestSoundButton>, button] [<CclButton>, button]",
        "window <InternalSoundsTitle>: [<InternalSoundsText>, list, car1, 1 of 2 / car1 / car2] "
        "[<OKButton>, button] [<CclButton>, button]",
        "window <NewCarTitle>: [<SelectItem>, list, Wipers: <Yes>, 14 of 14 / Engine Sound: "
        "<NotSet> / Throttle Sound: car1 / Ignition Sound: <NotSet> / Horn Sound: <NotSet> / "
        "Acceleration: <NotSet> / Deceleration: <NotSet> / Top Speed: <NotSet> / Engine Idle "
        "Frequency: <NotSet> / Engine Top Speed Frequency: <NotSet> / Engine Gear Shift Frequency: "
        "<NotSet> / Number of Gears: <NotSet> / Steering: <NotSet> / Steering Factor: <NotSet> / "
        "Wipers: <Yes>] [<SetButton>, button] [<SaveCarButton>, button] [<TestSoundButton>, "
        "button] [<CclButton>, button]",
        "<SelectItem>, list, Wipers: <No>, 14 of 14",
        "box <WipersQuestionTitle>: <WipersQuestionText>",
        "box <InternalSoundQuestionTitle>: <InternalSoundQuestionText>",
        "box <WipersQuestionTitle>: <WipersQuestionText>",
        "box <VehicleFileSavedTitle>: <VehicleFileSavedText>"}},

      {"values of a vehicle that are not given",
       [](Player& player) {
         player.NewVehicle("rocket");
         player.Clicks("<SaveCarButton>");
         for (int row = 0; row < 4; ++row) {
           player.user.AnswersNo();
           player.user.CancelsFileDialog();
           player.OnRow(row, "<SetButton>");
         }
         for (int row = 4; row < 13; ++row) {
           player.user.CancelsBox();
           player.OnRow(row, "<SetButton>");
           player.user.TypesInBox("fast");
           player.OnRow(row, "<SetButton>");
         }
         player.user.TypesInBox("101");
         player.OnRow(12, "<SetButton>");
       },
       {"box <VehicleNoFileErrorTitle>: <VehicleNoValuesText>",
        "box <InternalSoundQuestionTitle>: <InternalSoundQuestionText>",
        "box <NoEngineSoundTitle>: <NoEngineSoundText>",
        "box <InternalSoundQuestionTitle>: <InternalSoundQuestionText>",
        "box <NoThrottleSoundTitle>: <NoThrottleSoundText>",
        "box <InternalSoundQuestionTitle>: <InternalSoundQuestionText>",
        "box <NoStartSoundTitle>: <NoStartSoundText>",
        "box <InternalSoundQuestionTitle>: <InternalSoundQuestionText>",
        "box <NoHornSoundTitle>: <NoHornSoundText>",
        "box <NoAccelerationTitle>: <NoAccelerationText>",
        "box <InvalidAccelerationTitle>: <InvalidAccelerationText>",
        "box <NoDecelerationTitle>: <NoDecelerationText>",
        "box <InvalidDecelerationTitle>: <InvalidDecelerationText>",
        "box <NoSkidrunTitle>: <NoSkidrunText>",
        "box <InvalidSkidrunTitle>: <InvalidSkidrunText>",
        "box <NoIdleFrequencyTitle>: <NoIdleFrequencyText>",
        "box <NoIdleFrequencyTitle>: <InvalidIdleFrequencyText>",
        "box <NoTopFrequencyTitle>: <NoTopFrequencyText>",
        "box <InvalidTopFrequencyTitle>: <InvalidTopFrequencyText>",
        "box <NoShiftFrequencyTitle>: <NoShiftFrequencyText>",
        "box <InvalidShiftFrequencyTitle>: <InvalidShiftFrequencyTitle>",
        "box <NoNumberOfGearsTitle>: <NoNumberOfGearsText>",
        "box <InvalidNumberOfGearsTitle>: <InvalidNumberOfGearsText>",
        "box <NoSteeringTitle>: <NoSteeringText>",
        "box <InvalidSteeringTitle>: <InvalidSteeringText>",
        "box <NoSteeringFactorTitle>: <NoSteeringFactorText>",
        "box <InvalidSteeringFactorTitle>: <InvalidSteeringFactorText>",
        "box <SteeringFactorSetOutOfRangeTitle>: <SteeringFactorSetOutOfRangeText1> 1 <And> 100. "
        "<SteeringFactorSetOutOfRangeText2>",
        "dialog Open Engine Sound: <OpenWavDlgFilter> (*.wav)",
        "dialog Open Throttle Sound: <OpenWavDlgFilter> (*.wav)",
        "dialog Open Ignition Sound: <OpenWavDlgFilter> (*.wav)",
        "dialog Open Horn Sound: <OpenWavDlgFilter> (*.wav)",
        "question <AccelerationTitle>: <AccelerationPrompt>",
        "question <AccelerationTitle>: <AccelerationPrompt>",
        "question <DecelerationTitle>: <DecelerationPrompt>",
        "question <DecelerationTitle>: <DecelerationPrompt>",
        "question <SkidrunTitle>: <SkidrunPrompt>",
        "question <SkidrunTitle>: <SkidrunPrompt>",
        "question <IdleFrequencyTitle>: <IdleFrequencyPrompt>",
        "question <IdleFrequencyTitle>: <IdleFrequencyPrompt>",
        "question <TopFrequencyTitle>: <TopFrequencyPrompt>",
        "question <TopFrequencyTitle>: <TopFrequencyPrompt>",
        "question <ShiftFrequencyTitle>: <ShiftFrequencyPrompt>",
        "question <ShiftFrequencyTitle>: <ShiftFrequencyPrompt>",
        "question <NumberOfGearsTitle>: <NumberOfGearsPrompt>",
        "question <NumberOfGearsTitle>: <NumberOfGearsPrompt>",
        "question <SteeringTitle>: <SteeringPrompt>",
        "question <SteeringTitle>: <SteeringPrompt>",
        "question <SteeringFactorTitle>: <SteeringFactorPrompt>",
        "question <SteeringFactorTitle>: <SteeringFactorPrompt>",
        "question <SteeringFactorTitle>: <SteeringFactorPrompt>"}},

      {"sounds of a vehicle that cannot be heard",
       [](Player& player) {
         PutInternalSounds(player.machine);
         player.NewVehicle("rocket");
         for (const int row : {0, 2, 4, 7}) player.OnRow(row, "<TestSoundButton>");
         player.user.AnswersYes();
         player.OnRow(0, "<SetButton>");
         player.user.Presses("Enter");
         player.OnRow(7, "<TestSoundButton>");
         const std::string horn = Game + "\\vehicles\\horn.wav";
         player.machine.files.Put(horn, "no sound");
         player.user.AnswersNo();
         player.user.ChoosesFile(horn);
         player.OnRow(3, "<SetButton>");
         const WaveBytes::Format compressed{.tag = 2};
         const WaveBytes::Format odd{.bits = 12};
         for (const std::string& bytes :
              {std::string("no sound"), WaveBytes::Riff(WaveBytes::Chunk("data", "ab")),
               WaveBytes::File(compressed, "ab"), WaveBytes::File(odd, "ab"),
               WaveBytes::File(WaveBytes::Format{}, ""),
               WaveBytes::File(WaveBytes::Format{}, std::string(Platform::LargestWaveFile, 'a'))}) {
           player.machine.files.Put(horn, bytes);
           player.OnRow(3, "<TestSoundButton>");
         }
         player.machine.sound.Unplug();
         player.OnRow(0, "<TestSoundButton>");
         player.machine.sound.PlugIn();
         player.OnRow(0, "<TestSoundButton>");
         player.GoesTo("<StopButton>");
         player.shown.push_back(player.user.Hears());
         player.user.Presses("Enter");
       },
       {"<StopButton>, button",
        "box <TestSoundNonexistentTitle>: <TestSoundNonexistentText1> enginesound. "
        "<TestSoundNonexistentText2>",
        "box <IgnitionInternalErrorTitle>: <IgnitionInternalErrorText>",
        "box <InvalidTestVarErrorTitle>: <InvalidTestVarErrorText>",
        "box <FreqInternalErrorTitle>: <FreqInternalErrorText>",
        "box <InternalSoundQuestionTitle>: <InternalSoundQuestionText>",
        "box <RTETitle>: <SoundFrequencyNotPossible>",
        "box <InternalSoundQuestionTitle>: <InternalSoundQuestionText>",
        "box <RTETitle>: <SoundNotAWave>\r\n<RTEFile> C:\\Games\\Skidrun2\\vehicles\\horn.wav",
        "box <RTETitle>: <SoundDamaged>\r\n<RTEFile> C:\\Games\\Skidrun2\\vehicles\\horn.wav",
        "box <RTETitle>: <SoundCompressed>\r\n<RTEFile> C:\\Games\\Skidrun2\\vehicles\\horn.wav",
        "box <RTETitle>: <SoundFormatNotSupported>\r\n<RTEFile> "
        "C:\\Games\\Skidrun2\\vehicles\\horn.wav",
        "box <RTETitle>: <SoundHasNoData>\r\n<RTEFile> C:\\Games\\Skidrun2\\vehicles\\horn.wav",
        "box <RTETitle>: <SoundTooLarge>\r\n<RTEFile> C:\\Games\\Skidrun2\\vehicles\\horn.wav",
        "box <RTETitle>: <SoundNotAvailable>",
        "dialog Open Horn Sound: <OpenWavDlgFilter> (*.wav)"}},

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

      {"the About box",
       [](Player& player) {
         player.user.ChoosesMenu({"<XHelp>", "<HAbout>"});
       },
       {"box <About> Skidrun2/Skidrun2 Utility Pack: SK2Pack <Information>:\r\n"
        "Skidrun2 Utility Pack V1.0, <ExecutableFile> "
        "C:\\Program Files\\SK2Pack\\sk2pack.exe\r\n"
        "Skidrun2 <Information>:\r\n"
        "<InstallationFoundAtLocation>: C:\\Games\\Skidrun2\r\n"
        "<Version>: 1.0\r\n<Publisher>: Gloamworks\r\n"
        "<AboutContact1> support@orvane.example <AboutContact2> support@gloamworks.example "
        "<AboutContact3>"}},

      {"a game that is not installed",
       [](Player& player) {
         player.machine.registry = {};
         player.user.ChoosesMenu({"<XTrack>", "<TNew>"});
       },
       {"box <RTETitle>: <RTEGameNotInstalled>"}},

      {"failures",
       TellFailures,
       {"box <RTETitle>: <RTEInvalidCall>",
        "box <RTETitle>: <RTEOverflow>",
        "box <RTETitle>: <RTEOutOfMemory>",
        "box <RTETitle>: <RTETypeMismatch>",
        "box <RTETitle>: <RTEFileNotFound>",
        "box <RTETitle>: <RTEDeviceError>",
        "box <RTETitle>: <RTEDiskFull>",
        "box <RTETitle>: <RTEPermissionDenied>",
        "box <RTETitle>: <RTEDiskNotReady>",
        "box <RTETitle>: <RTEPathFileAccess>",
        "box <RTETitle>: <RTEPathNotFound>",
        "box <RTETitle>: <RTEFileAlreadyExists>",
        "box <RTETitle>: <RTENameNotUsable>\r\n<RTEFile> C:\\?",
        "box <RTETitle>: <RTEUnexpected>",
        "box <RTETitle>: <RTESystemLibrary>\r\n<RTEFile> a.dll",
        "box <RTETitle>: <RTESaveHalfDone>\r\n<RTEFile> C:\\a\r\n<RTECopy> C:\\b",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEOpeningFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEReadingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEWritingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEReplacingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTERewritingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTERestoringFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTERenamingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEDeletingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEAskingAttributes>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTESettingAttributes>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEListingFolder>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEMakingFolder>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEMakingWindow>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEMakingMenu>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEStartingTimer>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEMeasuringTexts>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEShowingFileDialog>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEOpeningSoundDevice>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEMakingMutex>: <RTESystemError> 5"}},

      {"files of an earlier run that were half saved",
       [](Player& player) {
         for (const LangText& text : {RuntimeErrorTexts.PutBack, RuntimeErrorTexts.NotPutBack}) {
           player.shown.push_back("box " + GetLangString(RuntimeErrorTexts.PutBackTitle) + ": " +
                                  SaveNoteText({text, "C:\\a", ""}));
         }
       },
       {"box <RTEPutBackTitle>: <RTEPutBack>\r\n<RTEFile> C:\\a",
        "box <RTEPutBackTitle>: <RTENotPutBack>\r\n<RTEFile> C:\\a"}},
  };
  return scenes;
}

// The keys of texts that nothing shows yet, or ever.
std::set<std::string> TextsOfToolsToCome() {
  std::set<std::string> keys{SharedTexts.SelectButton.key};
  const auto add = [&keys](const LangText& text) {
    if (text.key) keys.insert(text.key);
  };
  // The engine of a test is always one of the game's own, which cannot be missing.
  add(VehicleTexts.IgnitionEngineNonexistentText);
  add(VehicleTexts.IgnitionEngineNonexistentTitle);
  for (const LangText& text : TextsOf(PackagingTexts)) add(text);
  for (const LangText& text : TextsOf(InternetTexts)) add(text);
  for (const LangText& text : TextsOf(UpdateTexts)) add(text);
  for (const LangText& text : TextsOf(LanguageTexts)) add(text);
  return keys;
}

TEST(TranslatedPack, ShowsEveryTextInItsPlace) {
  std::string translation;
  for (const LangText& text : AllTexts()) {
    if (text.key) translation += std::string(text.key) + "=<" + text.key + ">\r\n";
  }
  const std::string languageFile = "C:\\Program Files\\SK2Pack\\sk2pack.lng";
  for (const Scene& scene : Scenes()) {
    SCOPED_TRACE(scene.name);
    Simulated::Machine machine;
    InstallGame(machine, Game);
    machine.files.Put(languageFile, translation);
    StartPack();
    Player player(machine);
    scene.play(player);
    player.Collects();
    EXPECT_THAT(player.shown, testing::ElementsAreArray(scene.shows));
    EXPECT_EQ(machine.files.Text(languageFile), translation) << "a text that no table lists";
  }
}

TEST(TranslatedPack, LeavesNoTextOut) {
  std::string all;
  for (const Scene& scene : Scenes()) {
    for (const std::string& line : scene.shows) all += line + "\n";
  }
  const std::set<std::string> toCome = TextsOfToolsToCome();
  for (const LangText& text : AllTexts()) {
    if (!text.key || toCome.contains(text.key)) continue;
    EXPECT_TRUE(Texts::Contains(all, "<" + std::string(text.key) + ">"))
        << text.key << " is shown by no scene";
  }
}

}  // namespace
