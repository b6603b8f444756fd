// The ground of tests that pack and unpack on the simulated machine.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "archive/Extraction.h"
#include "archive/Packing.h"
#include "base/RuntimeError.h"
#include "machine/simulated/Machine.h"
#include "platform/LongStep.h"
#include "tests/Story.h"
#include "tests/archive/ZipBytes.h"

// All that stands below a folder, folders with a backslash at their ends.
inline std::map<std::string, std::string> TreeOf(Simulated::Machine& machine,
                                                 const std::string& top,
                                                 const std::string& start = "") {
  std::map<std::string, std::string> tree;
  for (const std::string& name : machine.files.Names(top)) {
    const std::string path = top + "\\" + name;
    if (machine.files.Find(path)->isFolder) {
      tree[start + name + "\\"] = "";
      tree.merge(TreeOf(machine, path, start + name + "\\"));
    } else {
      tree[start + name] = machine.files.Text(path);
    }
  }
  return tree;
}

// Takes away a folder and all that stands in it.
inline void Clear(Simulated::Machine& machine, const std::string& folder) {
  const auto tree = TreeOf(machine, folder);
  for (auto entry = tree.rbegin(); entry != tree.rend(); ++entry) {
    const bool isFolder = entry->first.ends_with('\\');
    machine.files.Delete(folder + "\\" + entry->first.substr(0, entry->first.size() - isFolder));
  }
  machine.files.Delete(folder);
}

// Tells a story once for each moment in which the program answers other programs during its long
// step, and lets something happen at that moment.
template <class Prepare, class Happen, class Act>
void AtEachMoment(Simulated::Machine& machine, const Prepare& prepare, const Happen& happen,
                  const Act& act) {
  for (int moment = 0;; ++moment) {
    prepare();
    int left = moment;
    bool hasHappened = false;
    std::function<void()> answer = [&] {
      if (left-- > 0) return machine.user.DuringLongStep(answer);
      hasHappened = true;
      happen();
    };
    machine.user.DuringLongStep(answer);
    act();
    if (!hasHappened) {
      // The story has no more moments; what was to happen happens outside of it.
      const Platform::LongStep step;
      while (!hasHappened) step.AnswerOthers();
      return;
    }
    if (testing::Test::HasFailure()) {
      ADD_FAILURE() << "at moment " << moment;
      return;
    }
  }
}

// What an action fails with; nothing if it does not.
template <class Action>
std::optional<RuntimeError> FailureOf(const Action& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error;
  }
  return std::nullopt;
}
template <class Action>
std::string CauseKeyOf(const Action& action) {
  const auto failure = FailureOf(action);
  return failure ? failure->cause().key : "";
}

class ArchiveStory : public Story {
 protected:
  using Tree = std::map<std::string, std::string>;
  ArchiveStory() { machine.files.PutFolder("C:\\Pack"); }

  const std::string zip = "C:\\Pack\\temp.zip";
  const std::string game = "C:\\Game\\vehicles";

  void Put(const ZipBytes::Archive& archive) { machine.files.Put(zip, ZipBytes::Bytes(archive)); }
  void Extract() const { Archive::Extract(zip, game, ""); }
  Tree Game() { return TreeOf(machine, game); }
};
