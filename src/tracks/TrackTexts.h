// The texts of the track checker, the track editor and the random track generator.
#pragma once

#include "base/LangText.h"

struct TrackTextTable {
  // The curves, in the order of their codes.
  LangText Straight{"Straight", "Straight"};
  LangText EasyLeft{"EasyLeft", "Easy Left"};
  LangText Left{"Left", "Left"};
  LangText HardLeft{"HardLeft", "Hard Left"};
  LangText HairpinLeft{"HairpinLeft", "Hairpin Left"};
  LangText EasyRight{"EasyRight", "Easy Right"};
  LangText Right{"Right", "Right"};
  LangText HardRight{"HardRight", "Hard Right"};
  LangText HairpinRight{"HairpinRight", "Hairpin Right"};
  LangText StraightCrowd{"StraightCrowd", "Straight Crowd"};
  LangText StraightOcean{"StraightOcean", "Straight Ocean"};
  LangText StraightRunway{"StraightRunway", "Straight Runway"};
  LangText Clock{"Clock", "Clock"};

  // The surfaces, in the order of their codes.
  LangText Asphalt{"Asphalt", "Asphalt"};
  LangText Gravel{"Gravel", "Gravel"};
  LangText Water{"Water", "Water"};
  LangText Sand{"Sand", "Sand"};

  // The checker.
  LangText LineFirstLetter{"LineFirstLetter", "L"};
  LangText PartFirstLetter{"PartFirstLetter", "P"};
  LangText End{"End", "End"};
  LangText General{"General", "General"};
  LangText DoesNotExist{"DoesNotExist", "doesn't exist."};
  LangText CTFInvalidTrackCurveFormat{
      "CTFInvalidTrackCurveFormat",
      "Invalid track curve format. All track lines must be a number."};
  LangText CTFInvalidTrackSurfaceTypeFormat{
      "CTFInvalidTrackSurfaceTypeFormat",
      "Invalid track surface type format. All track lines must be a number."};
  LangText CTFInvalidTrackLengthFormat{
      "CTFInvalidTrackLengthFormat",
      "Invalid track section length format. All track lines must be a number."};
  LangText CTFTrackPartOutOfRange{"CTFTrackPartOutOfRange",
                                  "Track part out of range, value must be between"};
  LangText CTFTrackSurfaceTypeOutOfRange{"CTFTrackSurfaceTypeOutOfRange",
                                         "Surface type out of range, value must be between"};
  LangText CTFTrackSectionLengthTooLow{"CTFTrackSectionLengthTooLow",
                                       "Track length out of range. Value is to be"};
  LangText OrMore{"OrMore", "or more"};
  LangText CTFWeatherOutOfRange{"CTFWeatherOutOfRange", "Weather out of range, must be"};
  LangText NoTrackEnd{"NoTrackEnd", "No track end available."};
  LangText Lines{"Lines", "lines"};
  LangText Parts{"Parts", "parts"};
  LangText CTFCheckTrackSuccessful{"CTFCheckTrackSuccessful",
                                   "track file was checked successfully with no errors."};
  LangText CTFFileOK{"CTFFileOK", "File OK"};
  LangText CTNoFileText{"CTNoFileText", "No file selected."};
  LangText CTNoFileTitle{"CTNoFileTitle", "Notice"};

  // The editor.
  LangText TMAbortedNoFileText{"TMAbortedNoFileText", "Trackmaker aborted. No filename selected."};
  LangText TMAbortedNoFileTitle{"TMAbortedNoFileTitle", "Aborted"};
  LangText TrackmakerTitle{"TrackmakerTitle", "SK2 Trackmaker by Orvane Interactive"};
  LangText ExitButton{"ExitButton", "E&xit"};
  LangText SaveTrackButton{"SaveTrackButton", "&Save track"};
  LangText NewPartButton{"NewPartButton", "New &Part"};
  LangText NewTrackButton{"NewTrackButton", "New &Track"};
  LangText TrackViewer{"TrackViewer", "Track Viewer"};
  LangText NewPartTitle{"NewPartTitle", "New track part"};
  LangText LengthPrompt{"LengthPrompt", "Length:"};
  LangText SurfacePrompt{"SurfacePrompt", "Surface:"};
  LangText CurvePrompt{"CurvePrompt", "Curve:"};
  LangText LengthNotNumeric{"LengthNotNumeric", "Length must be a number."};
  LangText LengthTooLow{"LengthTooLow", "Length must be"};
  LangText SectionOn{"SectionOn", "section on"};
  LangText For{"For", "for"};
  LangText Units{"Units", "units"};
  LangText WeatherQuestionText{"WeatherQuestionText",
                               "Do you want your track sunny? If you choose no, it will rain!"};
  LangText WeatherQuestionTitle{"WeatherQuestionTitle", "Weather"};
  LangText TrackCompiledText{"TrackCompiledText",
                             "Your new track has been successfully written and saved."};
  LangText TrackCompiledTitle{"TrackCompiledTitle", "Track saved."};

  // Where the program has completed a name that was chosen to be written.
  LangText ReplaceTrackText{"ReplaceTrackText",
                            "This track exists already. Do you want to replace it?"};
  LangText ReplaceTrackTitle{"ReplaceTrackTitle", "Replace track"};

  // The random track generator.
  LangText RTMAbortedNoFileText{"RTMAbortedNoFileText",
                                "Random Trackmaker aborted. No filename selected."};
  LangText RTMAbortedNoFileTitle{"RTMAbortedNoFileTitle", "Aborted"};
  LangText AdventureQuestionText{"AdventureQuestionText",
                                 "Do you want your track to be a street adventure?"};
  LangText AdventureQuestionTitle{"AdventureQuestionTitle", "Adventure"};
  LangText TrackPartsQuestionText{"TrackPartsQuestionText",
                                  "How many parts do you want for this track?"};
  LangText TrackPartsQuestionTitle{"TrackPartsQuestionTitle", "Parts"};
  LangText RTMAbortedNoPartsText{"RTMAbortedNoPartsText",
                                 "Random Trackmaker aborted. No track parts specified."};
  LangText RTMAbortedNoPartsTitle{"RTMAbortedNoPartsTitle", "Aborted"};
  LangText RTMNotNumber{"RTMNotNumber", "Value must be a number."};
  LangText RTMFinishedText{"RTMFinishedText", "Your new track is created."};
  LangText RTMFinishedTitle{"RTMFinishedTitle", "Thank you!"};
};
inline constexpr TrackTextTable TrackTexts;
