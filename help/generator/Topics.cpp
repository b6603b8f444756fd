// What the help says of each window and of each item of the menu bar. Whoever adds one says here
// what it is for and which page tells all about it.
#include "help/generator/ProgramWindows.h"
#include "packaging/SKFileRecorder.h"

namespace Help {

namespace {

using Look = std::function<void()>;
using Simulated::Machine;

const std::string Game = "C:\\Games\\Skidrun2";
const std::string Server = "http://www.orvane.example/orvane/games/sk2/";

auto ByKey(const std::string& key) {
  return [key](Machine& machine, const Look& look) {
    machine.user.Presses(key);
    look();
  };
}

auto ByMenu(const std::vector<std::string>& menu) {
  return [menu](Machine& machine, const Look& look) {
    machine.user.ChoosesMenu(menu);
    look();
  };
}

void OpenTrackEditor(Machine& machine, const Look& look) {
  machine.user.ChoosesFile("new");
  machine.user.ChoosesMenu({"Track", "New"});
  look();
}

void OpenVehicleEditor(Machine& machine, const Look& look) {
  machine.user.ChoosesFile("new");
  machine.user.ChoosesMenu({"Vehicle", "New"});
  look();
}

// As Packaging goes on for a track or a vehicle without a description.
void OpenWavOptions(Machine& machine, const std::string& menu, const std::string& path) {
  machine.files.Put(path, "");
  machine.user.ChoosesFile(path);
  machine.user.ChoosesMenu({menu, "Package"});
}

const Description Spoken{.path = "C:\\new.wav", .OnKept = [] {}};

// Where the user can see the window: a box has asked them to begin, and it has gone.
void Recording(Machine& machine, const Look& look) {
  look();
  // It ends the recording, so that the machine is not left with one.
  machine.user.Presses("Escape");
}

void OpenDownloader(Machine& machine) {
  machine.web.Serve("http://address.orvane.example/", "...........1.2.3.4");
  machine.web.Serve(Server + "data/cars.lst", "Buggy:buggy.zip\n");
  machine.user.ChoosesMenu({"Internet", "Package Downloader"});
}

}  // namespace

const std::vector<WindowTopic>& WindowTopics() {
  static const std::vector<OwnKey> recordingKeys{
      {"Space", "ends the recording, so that you hear it"},
      {"Escape", "ends the recording and the packaging"}};
  static const std::vector<WindowTopic> all{
      {.form = "SK2UtilityPack",
       .heading = "The main window",
       .page = "main-window.html",
       .purpose = "holds the menu bar, and is hidden while another window of the pack is open",
       .open = [](Machine&, const Look& look) { look(); },
       .ownKeys = {{"Ctrl+N", "asks what you want to make: a vehicle or a track"},
                   {"Ctrl+P", "asks what you want to package: a vehicle or a track"},
                   {"Ctrl+C", "asks what you want to check: a vehicle, a track or your records"}}},
      {.form = "NewWhat",
       .page = "main-window.html",
       .purpose = "asks what you want to make",
       .open = ByKey("Ctrl+N"),
       .hasFixedRows = true},
      {.form = "PackageWhat",
       .page = "main-window.html",
       .purpose = "asks what you want to package",
       .open = ByKey("Ctrl+P"),
       .hasFixedRows = true},
      {.form = "CheckWhat",
       .page = "main-window.html",
       .purpose = "asks what you want to check",
       .open = ByKey("Ctrl+C"),
       .hasFixedRows = true},
      {.form = "NewCar",
       .page = "vehicle-editor.html",
       .purpose = "holds the fourteen values of a vehicle, and lets you set, hear and save them",
       .open = OpenVehicleEditor,
       .hasFixedRows = true},
      {.form = "InternalCars",
       .page = "internal-sounds.html",
       .purpose = "lists the sounds that the game itself brings along",
       .open =
           [](Machine& machine, const Look& look) {
             OpenVehicleEditor(machine, [] {});
             machine.user.AnswersYes();
             machine.user.Presses("Enter");
             look();
           }},
      {.form = "Trackmaker",
       .page = "track-editor.html",
       .purpose = "reads the parts that a new track has so far, and lets you add some and save it",
       .open = OpenTrackEditor,
       .ownKeys = {{"Ctrl+Shift+N", "New Part: adds a part to the track"},
                   {"Ctrl+N", "New Track: asks for another file name"},
                   {"Alt+C", "Save track: asks for the weather and writes the file"}}},
      {.form = "TrackParts",
       .page = "track-editor.html",
       .purpose = "asks for the length, the surface and the curve of a part of a track",
       .open =
           [](Machine& machine, const Look& look) {
             OpenTrackEditor(machine, [] {});
             machine.user.Presses("Enter");
             look();
           },
       .hasFixedRows = true},
      {.form = "InputBoxForm",
       .heading = "The window of a question that is answered by typing",
       .page = "vehicle-editor.html",
       .purpose = "has a title and a prompt that name what is asked for, such as the number "
                  "of parts of a random track, a number of a vehicle, or the name of a server",
       .open =
           [](Machine& machine, const Look& look) {
             machine.user.ChoosesFile("new");
             machine.user.AnswersNo();
             machine.user.WhenWindowOpens("Parts", [&machine, &look] {
               look();
               machine.user.Presses("Escape");
             });
             machine.user.ChoosesMenu({"Track", "Random Track"});
           }},
      {.form = "TrkWavOptions",
       .page = "packaging.html",
       .purpose = "asks where the spoken description of a track is to come from",
       .open =
           [](Machine& machine, const Look& look) {
             OpenWavOptions(machine, "Track", Game + "\\tracks\\hill.trk");
             look();
           },
       .hasFixedRows = true},
      {.form = "VhcWavOptions",
       .page = "packaging.html",
       .purpose = "asks where the spoken description of a vehicle is to come from",
       .open =
           [](Machine& machine, const Look& look) {
             OpenWavOptions(machine, "Vehicle", Game + "\\vehicles\\buggy.vhc");
             look();
           },
       .hasFixedRows = true},
      {.form = "AudioDevice",
       .page = "recording.html",
       .purpose = "lists the microphones and other devices to record from",
       .open =
           [](Machine& machine, const Look& look) {
             OpenWavOptions(machine, "Track", Game + "\\tracks\\hill.trk");
             machine.user.Presses("Down");
             machine.user.Presses("Enter");
             look();
           }},
      {.form = "Audioman",
       .heading = "Recording the description of a track",
       .page = "recording.html",
       .purpose = "is open while the description of a track is recorded and played",
       .open =
           [](Machine& machine, const Look& look) {
             SKFileRecorder::BeginTrackRecording(0, Spoken);
             Recording(machine, look);
           },
       .ownKeys = recordingKeys},
      {.form = "VhcAudioman",
       .heading = "Recording the description of a vehicle",
       .page = "recording.html",
       .purpose = "is open while the description of a vehicle is recorded and played",
       .open =
           [](Machine& machine, const Look& look) {
             SKFileRecorder::BeginVehicleRecording(0, Spoken, {});
             Recording(machine, look);
           },
       .ownKeys = recordingKeys},
      {.form = "HighScores",
       .page = "records.html",
       .purpose = "reads your best time on each track, and lets you delete records",
       .open =
           [](Machine& machine, const Look& look) {
             machine.files.Put(Game + "\\highscore.cfg", "hill=3661000\r\n");
             machine.user.ChoosesMenu({"Game", "Record Viewer"});
             look();
           }},
      {.form = "LanguageChanger",
       .page = "game-language.html",
       .purpose = "lists the languages that the game can speak",
       .open =
           [](Machine& machine, const Look& look) {
             machine.files.PutFolder(Game + "\\sounds\\English");
             machine.user.ChoosesMenu({"Language", "Change current language"});
             look();
           }},
      {.form = "ServerManager",
       .page = "server-list.html",
       .purpose = "holds the servers that you know, and tells the game which one to use",
       .open = ByMenu({"Internet", "Select Server"})},
      {.form = "IPView",
       .page = "public-address.html",
       .purpose = "tells the address under which others reach you on the internet",
       .open =
           [](Machine& machine, const Look& look) {
             machine.web.Serve("http://address.orvane.example/", "...........1.2.3.4");
             machine.user.ChoosesMenu({"Internet", "Personal IP Viewer"});
             look();
           }},
      {.form = "PackageDownloader",
       .page = "add-ons.html",
       .purpose = "asks which kind of add-on you look for",
       .open =
           [](Machine& machine, const Look& look) {
             OpenDownloader(machine);
             look();
           },
       .hasFixedRows = true},
      {.form = "FileList",
       .page = "add-ons.html",
       .purpose = "lists the add-ons of that kind that the server has",
       .open =
           [](Machine& machine, const Look& look) {
             OpenDownloader(machine);
             machine.user.Presses("Enter");
             look();
           }},
      {.form = "Progress",
       .heading = "Downloading and unpacking",
       .page = "add-ons.html",
       .purpose = "says in its title what the pack is busy with, and closes by itself",
       .open =
           [](Machine& machine, const Look& look) {
             OpenDownloader(machine);
             machine.user.Presses("Enter");
             // Before and while the list is fetched again; then the archive.
             for (int step = 0; step < 3; ++step) {
               machine.user.DuringLongStep([step, &look] {
                 if (step == 2) look();
               });
             }
             machine.user.Presses("Enter");
           }},
  };
  return all;
}

const std::vector<MenuTopic>& MenuTopics() {
  static const std::vector<MenuTopic> all{
      {"File > Close", "main-window.html", "ends the pack"},
      {"Vehicle > New", "vehicle-editor.html",
       "asks for a file name and opens the editor for a new vehicle"},
      {"Vehicle > Check .vhc file", "check-vehicle.html",
       "looks for the first fault in a vehicle file"},
      {"Vehicle > Package", "packaging.html",
       "puts a vehicle, its sounds and a spoken description into one archive"},
      {"Track > New", "track-editor.html",
       "asks for a file name and opens the editor for a new track"},
      {"Track > Random Track", "random-track.html", "writes a track that is drawn by chance"},
      {"Track > Check .trk file", "check-track.html", "looks for the first fault in a track file"},
      {"Track > Package", "packaging.html",
       "puts a track and a spoken description into one archive"},
      {"Language > Change current language", "game-language.html",
       "chooses the language that the game speaks"},
      {"Internet > Select Server", "server-list.html",
       "keeps a list of servers and chooses the one to play on"},
      {"Internet > Personal IP Viewer", "public-address.html",
       "tells the address under which others reach you"},
      {"Internet > Package Downloader", "add-ons.html",
       "gets vehicles, tracks and languages from the maker's server"},
      {"Game > Record Viewer", "records.html", "reads your best times"},
      {"Game > Check Record File", "records.html", "looks for the first fault in the record file"},
      {"Options > Automatically update on startup", "updates.html",
       "turns the quiet look for updates at each start on and off; it is checked while that is on"},
      {"Help > View Documentation", "index.html", "opens this help"},
      {"Help > Visit Websites > Gloamworks", "web-sites.html",
       "opens the web site of the game's publisher"},
      {"Help > Visit Websites > Orvane Interactive", "web-sites.html",
       "opens the web site of the pack's maker"},
      {"Help > Check for Updates", "updates.html", "looks for a newer version of the pack"},
      {"Help > About", "main-window.html",
       "tells the version of the pack, where the game was found, and where to write for help"},
  };
  return all;
}

}  // namespace Help
