// Reads the tables and the pictures of the sample folder out of the program's resources.
#include "sample_data.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <algorithm>
#include <stdexcept>

#include "base/text.h"

namespace vorlund::sample {
namespace {

QByteArray resource(std::string_view name) {
  QFile file(":/sample_game/" + QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
  if (!file.open(QIODevice::ReadOnly)) {
    throw std::runtime_error("there is no resource " + std::string(name));
  }
  return file.readAll();
}

/// The trimmed parts between separators, at least one.
std::vector<std::string> split(std::string_view line, char separator) {
  std::vector<std::string> parts;
  for (std::size_t end = line.find(separator); end != std::string_view::npos; end = line.find(separator)) {
    parts.push_back(trimmed(line.substr(0, end)));
    line.remove_prefix(end + 1);
  }
  parts.push_back(trimmed(line));
  return parts;
}

/// The names that an item of a list of files stands for.
std::vector<std::string> numbered_names(const std::string& item) {
  const std::vector<std::string> parts = split(item, '*');
  if (parts.size() == 1) {
    return parts;
  }
  const std::size_t first = item.find('#');
  const std::size_t digits = item.find_last_of('#') + 1 - first;
  std::vector<std::string> names;
  for (int number = 0; number < std::stoi(parts[1]); ++number) {
    const std::string text = std::to_string(number);
    std::string name = parts[0];
    names.push_back(name.replace(first, digits, std::string(digits - text.size(), '0') + text));
  }
  return names;
}

void read_line(StoreEntry& entry, std::string_view line) {
  const std::size_t colon = line.find(':');
  const std::string_view key = line.substr(0, colon);
  if (key == "picture") {
    const std::vector<std::string> parts = split(line.substr(colon + 1), '=');
    entry.picture = parts.at(0);
    entry.motif = parts.at(1);
  } else if (key == "files") {
    for (const std::string& item : split(line.substr(colon + 1), ';')) {
      const std::vector<std::string> names = numbered_names(item);
      entry.files.insert(entry.files.end(), names.begin(), names.end());
    }
  } else {
    entry.lines.emplace_back(line);
  }
}

std::vector<AircraftType> read_aircraft_types() {
  const std::string table = resource("aircraft.txt").toStdString();
  std::vector<AircraftType> types;
  for (const std::string_view line : split_lines(table)) {
    const std::vector<std::string> cells = split(line, ';');
    if (cells.size() == 7) {
      types.push_back({cells[0], to_upper(cells[0]), cells[1], cells[2], cells[3], cells[4],
                       std::stoi(cells[5]), std::stoi(cells[6])});
    }
  }
  return types;
}

std::vector<StoreEntry> read_store_entries() {
  const std::string table = resource("store.txt").toStdString();
  std::vector<StoreEntry> entries;
  for (const std::string_view line : split_lines(table)) {
    if (line.starts_with('[')) {
      entries.emplace_back().path = line.substr(1, line.size() - 2);
    } else if (!line.empty() && !entries.empty()) {
      read_line(entries.back(), line);
    }
  }
  return entries;
}

}  // namespace

const std::vector<AircraftType>& aircraft_types() {
  static const std::vector<AircraftType> types = read_aircraft_types();
  return types;
}

const std::vector<StoreEntry>& store_entries() {
  static const std::vector<StoreEntry> entries = read_store_entries();
  return entries;
}

const StoreEntry& store_entry(std::string_view path) {
  const auto found = std::ranges::find(store_entries(), path, &StoreEntry::path);
  if (found == store_entries().end()) {
    throw std::runtime_error("the sample store has no " + std::string(path));
  }
  return *found;
}

std::string picture_bytes(std::string_view motif, std::string_view file) {
  const QByteArray bytes = resource("pictures/" + std::string(motif) + ".jpg");
  const bool bitmap = same_name(last_characters(file, 4), ".bmp");
  if (!bitmap && !same_name(file, "SkinPic")) {
    return bytes.toStdString();
  }
  QBuffer converted;
  if (!QImage::fromData(bytes).save(&converted, bitmap ? "BMP" : "PNG")) {
    throw std::runtime_error("can't convert the picture " + std::string(motif));
  }
  return converted.data().toStdString();
}

}  // namespace vorlund::sample
