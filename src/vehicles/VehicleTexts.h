// The texts of the vehicle checker, the vehicle editor and the internal sound chooser.
#pragma once

#include "base/LangText.h"

struct VehicleTextTable {
  // The checker. Its box for a fault has a key of its own, unlike those of the other checkers.
  LangText CVFInvalidSyntax{"CVFInvalidSyntax",
                            "Invalid syntax. Line should be in the format variable=value."};
  LangText CVFInvalidVariable1{"CVFInvalidVariable1", "Invalid variable name"};
  LangText CVFInvalidVariable2{"CVFInvalidVariable2",
                               "Please remember that variable names are case sensitive."};
  LangText CVFNonexistentSoundFile1{"CVFNonexistentSoundFile1", "The sound"};
  LangText CVFNonexistentSoundFile2{"CVFNonexistentSoundFile2", "does not exist."};
  LangText CVFInvalidValue{"CVFInvalidValue",
                           "Invalid data entry. The value for this variable must be a number."};
  LangText CVFSteeringFactorOutOfRange{"CVFSteeringFactorOutOfRange",
                                       "Invalid steering factor. Must be a number between"};
  LangText CVFHasWipersOutOfRange{"CVFHasWipersOutOfRange", "haswipers out of range. Should be"};
  LangText CVFNoError{"CVFNoError", "Vehicle file checked with no errors."};
  LangText CVFNonexistentVhcFile{"CVFNonexistentVhcFile", "Vhc file does not exist."};
  LangText VehicleFileOKMSGTitle{"VehicleFileOKMSGTitle", "File OK"};
  LangText SyntaxErrorTitle{"SyntaxErrorTitle", "Syntax Error"};
  LangText VehicleNoFileErrorText{"VehicleNoFileErrorText", "No filename specified."};
  LangText VehicleNoFileErrorTitle{"VehicleNoFileErrorTitle", "Save error"};

  // The titles of the dialog in which a sound is chosen. They are the same in every language.
  LangText OpenEngineSound = FixedText("Open Engine Sound");
  LangText OpenThrottleSound = FixedText("Open Throttle Sound");
  LangText OpenIgnitionSound = FixedText("Open Ignition Sound");
  LangText OpenHornSound = FixedText("Open Horn Sound");

  // Setting a value.
  LangText InternalSoundQuestionText{"InternalSoundQuestionText",
                                     "Would you like to use an internal game sound?"};
  LangText InternalSoundQuestionTitle{"InternalSoundQuestionTitle", "Sound selection"};
  LangText NoEngineSoundText{"NoEngineSoundText",
                             "Engine sound not selected. Can't set engine sound."};
  LangText NoEngineSoundTitle{"NoEngineSoundTitle", "Error"};
  LangText NoThrottleSoundText{"NoThrottleSoundText",
                               "Throttle sound not selected. Can't set throttle sound."};
  LangText NoThrottleSoundTitle{"NoThrottleSoundTitle", "Error"};
  LangText NoStartSoundText{"NoStartSoundText",
                            "Ignition sound not selected. Can't set start sound."};
  LangText NoStartSoundTitle{"NoStartSoundTitle", "Error"};
  LangText NoHornSoundText{"NoHornSoundText", "Horn sound not selected. Can't set horn sound."};
  LangText NoHornSoundTitle{"NoHornSoundTitle", "Error"};
  LangText AccelerationPrompt{"AccelerationPrompt", "Type in value for acceleration:"};
  LangText AccelerationTitle{"AccelerationTitle", "Acceleration"};
  LangText NoAccelerationText{"NoAccelerationText",
                              "No acceleration value entered. Cannot set acceleration."};
  LangText NoAccelerationTitle{"NoAccelerationTitle", "Error"};
  LangText InvalidAccelerationText{
      "InvalidAccelerationText",
      "Invalid acceleration value. Must be numeric. Cannot set acceleration."};
  LangText InvalidAccelerationTitle{"InvalidAccelerationTitle", "Error"};
  LangText DecelerationPrompt{"DecelerationPrompt", "Type in value for deceleration:"};
  LangText DecelerationTitle{"DecelerationTitle", "Deceleration"};
  LangText NoDecelerationText{"NoDecelerationText",
                              "No deceleration value entered. Cannot set deceleration."};
  LangText NoDecelerationTitle{"NoDecelerationTitle", "Error"};
  LangText InvalidDecelerationText{
      "InvalidDecelerationText",
      "Invalid deceleration value. Must be numeric. Cannot set deceleration."};
  LangText InvalidDecelerationTitle{"InvalidDecelerationTitle", "Error"};
  LangText SkidrunPrompt{"SkidrunPrompt", "Type in value for top speed:"};
  LangText SkidrunTitle{"SkidrunTitle", "Top Speed"};
  LangText NoSkidrunText{"NoSkidrunText", "No speed value entered. Cannot set speed."};
  LangText NoSkidrunTitle{"NoSkidrunTitle", "Error"};
  LangText InvalidSkidrunText{"InvalidSkidrunText",
                              "Invalid speed value. Must be numeric. Cannot set speed."};
  LangText InvalidSkidrunTitle{"InvalidSkidrunTitle", "Error"};

  // The idle frequency has no title of its own for an invalid value; the shift frequency has one
  // key for the text and the title.
  LangText IdleFrequencyPrompt{"IdleFrequencyPrompt", "Type in value for engine's idle frequency:"};
  LangText IdleFrequencyTitle{"IdleFrequencyTitle", "Frequencies"};
  LangText NoIdleFrequencyText{"NoIdleFrequencyText",
                               "No frequency value entered. Cannot set idle frequency."};
  LangText NoIdleFrequencyTitle{"NoIdleFrequencyTitle", "Error"};
  LangText InvalidIdleFrequencyText{
      "InvalidIdleFrequencyText",
      "Invalid frequency value. Must be numeric. Cannot set idle frequency."};
  LangText TopFrequencyPrompt{"TopFrequencyPrompt", "Type in value for top frequency:"};
  LangText TopFrequencyTitle{"TopFrequencyTitle", "frequencies"};
  LangText NoTopFrequencyText{"NoTopFrequencyText",
                              "No frequency value entered. Cannot set top frequency."};
  LangText NoTopFrequencyTitle{"NoTopFrequencyTitle", "Error"};
  LangText InvalidTopFrequencyText{
      "InvalidTopFrequencyText",
      "Invalid frequency value. Must be numeric. Cannot set top frequency."};
  LangText InvalidTopFrequencyTitle{"InvalidTopFrequencyTitle", "Error"};
  LangText ShiftFrequencyPrompt{"ShiftFrequencyPrompt", "Type in value for gear shift frequency:"};
  LangText ShiftFrequencyTitle{"ShiftFrequencyTitle", "Frequencies"};
  LangText NoShiftFrequencyText{"NoShiftFrequencyText",
                                "No frequency value entered. Cannot set shift frequency."};
  LangText NoShiftFrequencyTitle{"NoShiftFrequencyTitle", "Error"};
  LangText InvalidShiftFrequencyTitle{
      "InvalidShiftFrequencyTitle",
      "Invalid frequency value. Must be numeric. Cannot set shift frequency."};
  LangText NumberOfGearsPrompt{"NumberOfGearsPrompt", "Type in value for the number of gears:"};
  LangText NumberOfGearsTitle{"NumberOfGearsTitle", "Gears"};
  LangText NoNumberOfGearsText{"NoNumberOfGearsText", "No value entered. Cannot set gears."};
  LangText NoNumberOfGearsTitle{"NoNumberOfGearsTitle", "Error"};
  LangText InvalidNumberOfGearsText{"InvalidNumberOfGearsText",
                                    "Invalid value. Must be numeric. Cannot set gears."};
  LangText InvalidNumberOfGearsTitle{"InvalidNumberOfGearsTitle", "Error"};
  LangText SteeringPrompt{"SteeringPrompt", "Type in value for steering:"};
  LangText SteeringTitle{"SteeringTitle", "Steering"};
  LangText NoSteeringText{"NoSteeringText", "No value entered. Cannot set steering."};
  LangText NoSteeringTitle{"NoSteeringTitle", "Error"};
  LangText InvalidSteeringText{"InvalidSteeringText",
                               "Invalid value. Must be numeric. Cannot set steering."};
  LangText InvalidSteeringTitle{"InvalidSteeringTitle", "Error"};
  LangText SteeringFactorPrompt{"SteeringFactorPrompt",
                                "Type in percentage value for steering factor:"};
  LangText SteeringFactorTitle{"SteeringFactorTitle", "Steering"};
  LangText NoSteeringFactorText{"NoSteeringFactorText",
                                "No value entered. Cannot set steering factor."};
  LangText NoSteeringFactorTitle{"NoSteeringFactorTitle", "Error"};
  LangText InvalidSteeringFactorText{"InvalidSteeringFactorText",
                                     "Invalid value. Must be numeric. Cannot set steering factor."};
  LangText InvalidSteeringFactorTitle{"InvalidSteeringFactorTitle", "Error"};
  LangText SteeringFactorSetOutOfRangeText1{"SteeringFactorSetOutOfRangeText1",
                                            "Invalid value. Must be a percentage between"};
  LangText SteeringFactorSetOutOfRangeText2{"SteeringFactorSetOutOfRangeText2",
                                            "Cannot set steering factor."};
  LangText SteeringFactorSetOutOfRangeTitle{"SteeringFactorSetOutOfRangeTitle", "Error"};
  LangText WipersQuestionText{"WipersQuestionText",
                              "Do you want your car to have windscreen wipers?"};
  LangText WipersQuestionTitle{"WipersQuestionTitle", "Wipers"};
  LangText VehicleNoValuesText{"VehicleNoValuesText",
                               "No value has been set yet. The file was not saved."};
  LangText VehicleFileSavedText{"VehicleFileSavedText", "Vehicle file saved!"};
  LangText VehicleFileSavedTitle{"VehicleFileSavedTitle", "Congratulations!"};

  // What stands before the value in the editor's rows, in the order of the variables. They are the
  // same in every language.
  LangText EngineSoundRow = FixedText("Engine Sound: ");
  LangText ThrottleSoundRow = FixedText("Throttle Sound: ");
  LangText IgnitionSoundRow = FixedText("Ignition Sound: ");
  LangText HornSoundRow = FixedText("Horn Sound: ");
  LangText AccelerationRow = FixedText("Acceleration: ");
  LangText DecelerationRow = FixedText("Deceleration: ");
  LangText TopSpeedRow = FixedText("Top Speed: ");
  LangText IdleFrequencyRow = FixedText("Engine Idle Frequency: ");
  LangText TopFrequencyRow = FixedText("Engine Top Speed Frequency: ");
  LangText ShiftFrequencyRow = FixedText("Engine Gear Shift Frequency: ");
  LangText NumberOfGearsRow = FixedText("Number of Gears: ");
  LangText SteeringRow = FixedText("Steering: ");
  LangText SteeringFactorRow = FixedText("Steering Factor: ");
  LangText WipersRow = FixedText("Wipers: ");

  // The editor and the sound test.
  LangText NewCarTitle{"NewCarTitle", "Create Vehicle"};
  LangText SelectItem{"SelectItem", "Select an item:"};
  LangText SetButton{"SetButton", "&Set"};
  LangText SaveCarButton{"SaveCarButton", "S&ave"};
  LangText TestSoundButton{"TestSoundButton", "&Test Sound"};
  LangText StopButton{"StopButton", "S&top"};
  LangText NotSet{"NotSet", "not set"};
  LangText Yes{"Yes", "Yes"};
  LangText No{"No", "No"};
  LangText InternalSoundsTitle{"InternalSoundsTitle", "Select Internal Sound:"};
  LangText InternalSoundsText{"InternalSoundsText", "Sounds:"};
  LangText TestSoundNonexistentText1{"TestSoundNonexistentText1", "Cannot test"};
  LangText TestSoundNonexistentText2{"TestSoundNonexistentText2", "File doesn't exist."};
  LangText TestSoundNonexistentTitle{"TestSoundNonexistentTitle", "Test error"};
  LangText IgnitionInternalErrorText{"IgnitionInternalErrorText",
                                     "Cannot test ignition. No filename entered."};
  LangText IgnitionInternalErrorTitle{"IgnitionInternalErrorTitle", "Internal error"};
  LangText IgnitionEngineNonexistentText{"IgnitionEngineNonexistentText",
                                         "Can't test ignition. Engine file doesn't exist."};
  LangText IgnitionEngineNonexistentTitle{"IgnitionEngineNonexistentTitle", "Input error"};
  LangText FreqInternalErrorText{"FreqInternalErrorText",
                                 "No filename specified. Cannot test frequencies."};
  LangText FreqInternalErrorTitle{"FreqInternalErrorTitle", "Internal error"};
  LangText InvalidTestVarErrorText{
      "InvalidTestVarErrorText",
      "Cannot test. The variable you have selected is not a testable value."};
  LangText InvalidTestVarErrorTitle{"InvalidTestVarErrorTitle", "Input error"};
};
inline constexpr VehicleTextTable VehicleTexts;
