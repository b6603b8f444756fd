#include "tools/IndexPage.h"

#include "base/Text.h"
#include "tools/Html.h"

namespace IndexPage {

namespace {

using Catalogue::AddOn;
using Html::Escaped;

struct Heading {
  const char* name;  // of the section, and of one thing in it
  const char* one;
  const char* id;
};
constexpr Heading Headings[ComponentPlaces::Count] = {
    {"Cars", "Car", "cars"}, {"Tracks", "Track", "tracks"}, {"Languages", "Language", "languages"}};

// A whole number with "," between thousands.
std::string Grouped(uint64_t number) {
  std::string text = std::to_string(number);
  for (size_t at = text.size(); at > 3; at -= 3) text.insert(at - 3, ",");
  return text;
}

std::string Link(const std::string& address, const std::string& text) {
  return "<a href=\"" + Escaped(Html::Address(address)) + "\">" + Escaped(text) + "</a>";
}

std::string Section(const char* id, const char* name) {
  return std::string("<h2 id=\"") + id + "\">" + name + "</h2>\n";
}

std::string TableStart(const std::string& caption, const std::string& first, bool isDescribed) {
  return "<table>\n<caption>" + caption + "</caption>\n<thead>\n<tr><th scope=\"col\">" + first +
         "</th>" + (isDescribed ? "<th scope=\"col\">Description</th>" : "") +
         "<th scope=\"col\">Size in bytes</th><th scope=\"col\">SHA-256</th></tr>\n</thead>\n"
         "<tbody>\n";
}

// A description with its lines kept.
std::string Lines(const std::string& text) {
  return Text::Replace(Escaped(text), "\n", "<br>\n");
}

std::string Row(const std::string& address, const std::string& name, const std::string* description,
                const FileSum& sum) {
  return "<tr><th scope=\"row\">" + Link(address, name) + "</th>" +
         (description ? "<td>" + Lines(*description) + "</td>" : "") + "<td>" + Grouped(sum.size) +
         "</td><td><code>" + sum.sha256 + "</code></td></tr>\n";
}

std::string AddOns(int kind, const std::vector<AddOn>& addOns) {
  const Heading& heading = Headings[kind];
  std::string html = Section(heading.id, heading.name);
  if (addOns.empty()) return html + "<p>There are none yet.</p>\n";
  html += TableStart(std::string(heading.name) + " and their archives", heading.one, true);
  for (const AddOn& addOn : addOns) {
    html += Row(ComponentPlaces::ArchivePathOf(kind, addOn.archive.name), addOn.displayName,
                &addOn.description, addOn.archive.sum);
  }
  return html + "</tbody>\n</table>\n";
}

std::string Software(const Catalogue::Contents& contents) {
  std::string html = Section("software", "Software");
  if (!contents.versions.empty()) {
    html += "<p>Versions:</p>\n<ul>\n";
    for (const Versions::Record& record : contents.versions) {
      html += "<li>" + Escaped(record.product) + " " + Escaped(record.version) + "</li>\n";
    }
    html += "</ul>\n";
  }
  if (contents.software.empty()) return html + "<p>There is no program to download.</p>\n";
  html += TableStart("Programs", "File", false);
  for (const Catalogue::File& file : contents.software) {
    html += Row("/orvane/software/" + file.name, file.name, nullptr, file.sum);
  }
  return html + "</tbody>\n</table>\n";
}

}  // namespace

std::string Of(const Catalogue::Contents& contents) {
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width\">\n"
      "<title>Add-ons for Skidrun2</title>\n</head>\n<body>\n<main>\n"
      "<h1>Add-ons for Skidrun2</h1>\n"
      "<p>The Skidrun2 Utility Pack installs all of this by itself: open its menu Internet and "
      "choose Package Downloader. Here is the same to be looked at, with the SHA-256 checksum by "
      "which you can tell that a file came whole.</p>\n"
      "<ul>\n";
  for (const Heading& heading : Headings) {
    html += std::string("<li><a href=\"#") + heading.id + "\">" + heading.name + "</a></li>\n";
  }
  html += "<li><a href=\"#software\">Software</a></li>\n</ul>\n";
  for (int kind = 0; kind < ComponentPlaces::Count; ++kind) {
    html += AddOns(kind, contents.addOns[static_cast<size_t>(kind)]);
  }
  return html + Software(contents) + "</main>\n</body>\n</html>\n";
}

}  // namespace IndexPage
