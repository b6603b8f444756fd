// The tools for vehicles in the language of keys.
#include "platform/WaveFile.h"
#include "tests/WaveBytes.h"
#include "tests/app/TranslatedPack.h"
#include "tests/vehicles/InternalSoundResources.h"

namespace Translated {

std::vector<Scene> VehicleScenes() {
  return {
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
        "box <RTETitle>: <SoundNotAvailable>\r\n<RTEOpeningSoundDevice>: <RTESystemError> "
        "0x88780078",
        "dialog Open Horn Sound: <OpenWavDlgFilter> (*.wav)"}},
  };
}

}  // namespace Translated
