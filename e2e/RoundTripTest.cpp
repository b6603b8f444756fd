// What is packaged here is downloaded elsewhere: a vehicle and a track go by the web into another
// player's game, and are without a fault there.
#include "e2e/driver/PackTest.h"
#include "e2e/driver/WebServer.h"

namespace E2e {
namespace {

const std::string Server = "http://www.orvane.example/orvane/games/sk2/";

class RoundTrip : public PackTest {
 protected:
  // The kind is counted from 0, as in the list of kinds.
  void Download(int kind) {
    Pack& pack = RunningPack();
    pack.ChooseMenu({"Internet", "Package Downloader"});
    pack.WaitForWindow("SK2 Package Downloader");
    for (int i = 0; i < kind; ++i) pack.Press("Down");
    pack.WaitForRow(kind == 0 ? "Car" : "Track");
    pack.Press("Enter");
    pack.WaitForWindow("Download directory");
    pack.Press("Enter");
    EXPECT_EQ(pack.AnswerBox(),
              Information("Download completed.", "File successfully downloaded and installed."));
    pack.WaitForMain();
  }
  void ExpectFaultless(const std::vector<std::string>& menu, const std::string& name) {
    RunningPack().ChooseMenu(menu);
    RunningPack().ChooseFile(name);
    const BoxText verdict = RunningPack().AnswerBox();
    EXPECT_EQ(verdict.icon, BoxIcon::Information) << verdict.text;
    RunningPack().WaitForMain();
  }

  WebServer server;
};

TEST_F(RoundTrip, OfAVehicleAndATrackEndsWithoutAFault) {
  server.Serve("http://address.orvane.example/", "...........Your address:   203.0.113.7   ");
  const std::string vehicles = gameFolder() + "\\vehicles\\";
  const std::string tracks = gameFolder() + "\\tracks\\";
  const std::string lines = "skidrun=1\r\nenginesound=own.wav\r\nhornsound=car1\r\n";
  const std::string course = "0\r\n0\r\n5000\r\n-1\r\n0\r\n";
  WriteFile(vehicles + "rocket.vhc", lines);
  WriteFile(vehicles + "rocket.wav", "a rocket");
  WriteFile(vehicles + "own.wav", "an engine");
  WriteFile(tracks + "lake.trk", course);
  WriteFile(tracks + "lake.wav", "a lake");
  Pack& pack = StartPack();
  pack.ChooseMenu({"Vehicle", "Package"});
  pack.ChooseFile("rocket.vhc");
  EXPECT_EQ(pack.AnswerBox().icon, BoxIcon::Information);
  pack.WaitForMain();
  pack.ChooseMenu({"Track", "Package"});
  pack.ChooseFile("lake.trk");
  EXPECT_EQ(pack.AnswerBox().icon, BoxIcon::Information);
  pack.WaitForMain();
  server.Serve(Server + "data/cars.lst", "The Rocket:rocket.zip\n");
  server.Serve(Server + "data/tracks.lst", "The Lake:lake.zip\n");
  server.Serve(Server + "cars/rocket.zip", ReadFile(vehicles + "rocket.zip"));
  server.Serve(Server + "tracks/lake.zip", ReadFile(tracks + "lake.zip"));

  // The pack asks anew each time where the game is.
  const InstalledGame other(scratch.path() + "\\Other");
  Download(0);
  Download(1);
  EXPECT_EQ(ReadFile(other.folder() + "\\vehicles\\rocket.vhc"), lines);
  EXPECT_EQ(ReadFile(other.folder() + "\\vehicles\\rocket.wav"), "a rocket");
  EXPECT_EQ(ReadFile(other.folder() + "\\vehicles\\own.wav"), "an engine");
  EXPECT_EQ(ReadFile(other.folder() + "\\tracks\\lake.trk"), course);
  EXPECT_EQ(ReadFile(other.folder() + "\\tracks\\lake.wav"), "a lake");
  ExpectFaultless({"Vehicle", "Check .vhc file"}, "rocket.vhc");
  ExpectFaultless({"Track", "Check .trk file"}, "lake.trk");
}

}  // namespace
}  // namespace E2e
