// The pages of keys, menus and windows.
#include <algorithm>
#include <stdexcept>

#include "help/generator/Pages.h"
#include "help/generator/ProgramWindows.h"

namespace Help {

namespace {

using Platform::Control;

std::string Bold(const std::string& text) {
  return "<b>" + Escaped(text) + "</b>";
}

std::string Link(const std::string& page, const std::string& text) {
  return "<a href=\"" + page + "\">" + Escaped(text) + "</a>";
}

std::string Page(const std::string& title, const std::string& keywords, const std::string& body) {
  return "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\" "
         "\"http://www.w3.org/TR/html4/strict.dtd\">\n"
         "<html lang=\"en\">\n<head>\n"
         "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=us-ascii\">\n"
         "<meta name=\"keywords\" content=\"" +
         keywords + "\">\n<title>" + title + "</title>\n</head>\n<body>\n<h1>" + title + "</h1>\n" +
         body + "<p>" + Link(FirstPage, "Contents of the help") + "</p>\n</body>\n</html>\n";
}

using Row = std::vector<std::string>;

// A table with a caption, whose first row is its head.
std::string Table(const std::string& caption, const std::vector<Row>& rows) {
  std::string html = "<table border=\"1\">\n<caption>" + Escaped(caption) + "</caption>\n";
  for (size_t i = 0; i < rows.size(); ++i) {
    html += "<tr>";
    for (const std::string& cell : rows[i]) {
      html += i == 0 ? "<th scope=\"col\">" + cell + "</th>" : "<td>" + cell + "</td>";
    }
    html += "</tr>\n";
  }
  return html + "</table>\n";
}

// The name under which an item of a menu is linked to: "vehicle-check-vhc-file".
std::string AnchorOf(const std::string& path) {
  std::string anchor;
  for (const char c : path) {
    if (std::isalnum(static_cast<unsigned char>(c))) {
      anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    } else if (!anchor.empty() && anchor.back() != '-') {
      anchor += '-';
    }
  }
  return anchor;
}

const MenuTopic& TopicOf(const ShownItem& item) {
  const auto& all = MenuTopics();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const MenuTopic& topic) { return topic.path == item.path; });
  if (found == all.end()) throw std::runtime_error("the help says nothing of " + item.path);
  return *found;
}

// "Alt+V, then N"; without an access key on the way, how the item is reached.
std::string KeysOf(const ShownItem& item) {
  std::string keys = std::string("Alt+") + item.accessKeys.front();
  for (size_t i = 1; i < item.accessKeys.size(); ++i) {
    keys += item.accessKeys[i] ? std::string(", then ") + item.accessKeys[i]
                               : ", then the arrow keys and Enter";
  }
  return keys;
}

std::string MenusPage(const std::vector<ShownItem>& items, const Titles& titles) {
  std::string body =
      "<p>This is the whole menu bar of the main window. Alt or F10 leads to it, the arrow keys "
      "lead through it, and Enter chooses. " +
      Link("keyboard.html", "Every key of the pack") + " tells the shorter ways.</p>\n";
  size_t depth = 0;  // of the lists that are open: an item of a menu of the bar is 1 deep
  for (const ShownItem& item : items) {
    for (; depth >= item.accessKeys.size(); --depth)
      body += depth > 1 ? "</ul>\n</li>\n" : "</ul>\n";
    if (item.isMenu) {
      const bool isInBar = item.accessKeys.size() == 1;
      body += isInBar
                  ? "<h2 id=\"" + AnchorOf(item.path) + "\">The menu " + item.caption + "</h2>\n"
                  : "<li id=\"" + AnchorOf(item.path) + "\">" + Bold(item.caption) +
                        " has items of its own:\n";
      body += "<ul>\n";
      ++depth;
      continue;
    }
    const MenuTopic& topic = TopicOf(item);
    body += "<li id=\"" + AnchorOf(item.path) + "\">" + Bold(item.caption) +
            (item.shortcut.empty() ? "" : " (" + item.shortcut + ")") + ": " + Escaped(topic.what) +
            ". See " + Link(topic.page, titles.at(topic.page)) + ".</li>\n";
  }
  for (; depth > 0; --depth) body += depth > 1 ? "</ul>\n</li>\n" : "</ul>\n";
  return Page("The menus, item by item", "menu bar; menus", body);
}

std::string HeadingOf(const WindowTopic& topic, const ShownWindow& window) {
  return topic.heading.empty() ? window.title : topic.heading;
}

std::string KindOf(const ShownControl& control) {
  switch (control.kind) {
    case Control::Kind::Label: return "text";
    case Control::Kind::TextBox: return control.isReadOnly ? "field for reading" : "field";
    case Control::Kind::ListBox: return "list";
    case Control::Kind::Button: return "button";
  }
  return "";
}

std::string KeysOf(const ShownControl& control) {
  std::string keys;
  const auto add = [&keys](const std::string& key) { keys += (keys.empty() ? "" : ", ") + key; };
  if (control.accessKey) add(std::string("Alt+") + control.accessKey);
  if (control.isDefault) add("Enter");
  if (control.isCancel) add("Escape");
  return keys;
}

std::string RowsOf(const ShownControl& control) {
  std::string rows;
  for (const std::string& row : control.rows) {
    // What stands behind the colon is the value that has not been given yet.
    const std::string name = row.substr(0, row.find(": "));
    rows += (rows.empty() ? ": " : "; ") + name;
  }
  return Escaped(rows);
}

struct OpenedWindow {
  WindowTopic topic;
  ShownWindow window;
};

std::vector<OpenedWindow> OpenAll() {
  std::vector<OpenedWindow> all;
  for (const WindowTopic& topic : WindowTopics()) {
    Open(topic, [&](const Platform::Form& form) { all.push_back({topic, ShownIn(form)}); });
  }
  return all;
}

std::string WindowsPage(const std::vector<OpenedWindow>& windows, const Titles& titles) {
  std::string body =
      "<p>These are the windows of the pack with all that is in them, in the order in which Tab "
      "goes through them. Messages, and the dialogs in which files are chosen, are those of "
      "Windows itself.</p>\n";
  for (const auto& [topic, window] : windows) {
    body += "<h2 id=\"" + topic.form + "\">" + Escaped(HeadingOf(topic, window)) + "</h2>\n<p>";
    body += topic.heading.empty() ? "The window " + Bold(window.title) : "This window";
    body += " " + Escaped(topic.purpose) + ". See " + Link(topic.page, titles.at(topic.page)) +
            ".</p>\n";
    std::vector<Row> rows{{"Name", "What it is", "Keys"}};
    for (const ShownControl& control : window.controls) {
      // Of a question only the kind of its field is always the same.
      const bool isPrompt = topic.form == "InputBoxForm" && control.kind == Control::Kind::TextBox;
      rows.push_back({isPrompt ? "the prompt" : Escaped(control.name),
                      KindOf(control) + (topic.hasFixedRows ? RowsOf(control) : ""),
                      KeysOf(control)});
    }
    const std::string heading = HeadingOf(topic, window);
    if (rows.size() > 1) body += Table("What is in it: " + heading, rows);
    if (topic.ownKeys.empty()) continue;
    body += "<p>It has keys besides:</p>\n<ul>\n";
    for (const OwnKey& key : topic.ownKeys) {
      body += "<li>" + Escaped(key.keys + ": " + key.what) + "</li>\n";
    }
    body += "</ul>\n";
  }
  return Page("The windows, one by one", "windows; fields; buttons; lists", body);
}

std::string KeyboardPage(const std::vector<ShownItem>& items,
                         const std::vector<OpenedWindow>& windows) {
  std::string body =
      "<p>Everything in the pack is done from the keyboard. This page has every key; what a screen "
      "reader does with its own keys is not changed by the pack.</p>\n"
      "<h2>Keys that work in every window</h2>\n" +
      Table("Keys that work in every window",
            {{"Key", "What it does"},
             {"Tab", "goes to the next field, list or button"},
             {"Shift+Tab", "goes to the one before"},
             {"Alt and a letter", "goes to the field, or presses the button, of that letter"},
             {"Enter", "presses the main button of the window"},
             {"Escape", "presses the button that leaves the window"},
             {"Space", "presses the button that has the focus"},
             {"Arrow keys, Home, End", "go through a list; so do the first letters of a row"},
             {"Ctrl+C", "in a field copies what is selected; in a message copies its text"},
             {"Alt+F4", "closes the window; the main window ends the pack"}});
  std::vector<Row> rows{{"Item", "Keys", "Shortcut"}};
  for (const ShownItem& item : items) {
    if (item.isMenu) continue;
    rows.push_back({Escaped(item.path), KeysOf(item),
                    item.shortcut == "Alt+F4" ? "Alt+F4" : Escaped(item.shortcut)});
  }
  body +=
      "<h2>Keys of the menus</h2>\n<p>The shortcuts of vehicles and of tracks are the same: "
      "they ask which of the two you mean.</p>\n" +
      Table("Keys of the menus", rows) + "<h2>Keys of each window</h2>\n";
  for (const auto& [topic, window] : windows) {
    std::vector<Row> keys{{"Key", "What it does"}};
    for (const OwnKey& key : topic.ownKeys) keys.push_back({key.keys, Escaped(key.what)});
    for (const ShownControl& control : window.controls) {
      const std::string pressed = KeysOf(control);
      if (!pressed.empty()) {
        keys.push_back({pressed, Escaped((control.kind == Control::Kind::Button ? "" : "goes to ") +
                                         control.name)});
      }
    }
    if (keys.size() == 1) continue;
    body += "<h3>" + Link("windows.html#" + topic.form, HeadingOf(topic, window)) + "</h3>\n" +
            Table("Keys of this window: " + HeadingOf(topic, window), keys);
  }
  return Page("Every key of the pack", "keys; keyboard; shortcuts; access keys", body);
}

}  // namespace

std::string Escaped(const std::string& text) {
  std::string html;
  for (const char c : text) {
    if (c == '&') {
      html += "&amp;";
    } else if (c == '<') {
      html += "&lt;";
    } else if (c == '>') {
      html += "&gt;";
    } else if (c == '"') {
      html += "&quot;";
    } else {
      html += c;
    }
  }
  return html;
}

std::map<std::string, std::string> TablePages(const Titles& titles) {
  const std::vector<ShownItem> items = MenuBar();
  const std::vector<OpenedWindow> windows = OpenAll();
  return {{"keyboard.html", KeyboardPage(items, windows)},
          {"menus.html", MenusPage(items, titles)},
          {"windows.html", WindowsPage(windows, titles)}};
}

}  // namespace Help
