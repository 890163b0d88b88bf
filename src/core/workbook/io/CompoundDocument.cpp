#include "core/workbook/io/CompoundDocument.h"

#include <cstdint>

#include "core/workbook/io/LittleEndian.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

constexpr std::size_t kSectorSize = 512;
constexpr std::size_t kMiniStreamCutoff = 4096;
constexpr std::size_t kEntriesPerFatSector = kSectorSize / 4;
constexpr std::size_t kHeaderFatSlots = 109;
constexpr std::uint32_t kFreeSector = 0xFFFFFFFF;
constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr std::uint32_t kFatSector = 0xFFFFFFFD;
constexpr std::uint32_t kNoEntry = 0xFFFFFFFF;

enum EntryType : std::uint8_t { kUnused = 0, kStream = 2, kRoot = 5 };

// One 128-byte directory entry; the only tree is the root with its one stream as child.
void AppendEntry(std::string& out, std::string_view name, EntryType type, std::uint32_t child,
                 std::uint32_t firstSector, std::uint32_t size) {
  const std::size_t start = out.size();
  for (char c : name) AppendU16(out, static_cast<unsigned char>(c));
  out.resize(start + 64, '\0');
  AppendU16(out, name.empty() ? 0 : static_cast<std::uint32_t>(2 * (name.size() + 1)));
  AppendU8(out, type);
  AppendU8(out, 1);  // black
  AppendU32(out, kNoEntry);
  AppendU32(out, kNoEntry);
  AppendU32(out, child);
  out.resize(out.size() + 16 + 4 + 8 + 8, '\0');  // class id, state bits, two times
  AppendU32(out, firstSector);
  AppendU32(out, size);
  AppendU32(out, 0);
}

}  // namespace

void WriteCompoundDocument(std::ostream& out, std::string_view streamName, std::string stream) {
  if (stream.size() < kMiniStreamCutoff) stream.resize(kMiniStreamCutoff, '\0');
  const std::size_t streamSize = stream.size();
  stream.resize((streamSize + kSectorSize - 1) / kSectorSize * kSectorSize, '\0');
  const std::size_t streamSectors = stream.size() / kSectorSize;
  const std::size_t directorySector = streamSectors;
  std::size_t fatSectors = 1;
  while (fatSectors * kEntriesPerFatSector < streamSectors + 1 + fatSectors) ++fatSectors;
  if (fatSectors > kHeaderFatSlots)
    throw FacilityError(errc::kFileWrite, "The workbook is too large for an Excel 5.0 file");
  const std::size_t firstFatSector = directorySector + 1;

  std::string header = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
  header.resize(24, '\0');
  AppendU16(header, 0x003E);
  AppendU16(header, 3);
  AppendU16(header, 0xFFFE);
  AppendU16(header, 9);  // 512-byte sectors
  AppendU16(header, 6);  // 64-byte mini sectors
  header.resize(header.size() + 6, '\0');
  AppendU32(header, 0);
  AppendU32(header, static_cast<std::uint32_t>(fatSectors));
  AppendU32(header, static_cast<std::uint32_t>(directorySector));
  AppendU32(header, 0);
  AppendU32(header, kMiniStreamCutoff);
  AppendU32(header, kEndOfChain);
  AppendU32(header, 0);
  AppendU32(header, kEndOfChain);
  AppendU32(header, 0);
  for (std::size_t i = 0; i < kHeaderFatSlots; ++i)
    AppendU32(header,
              i < fatSectors ? static_cast<std::uint32_t>(firstFatSector + i) : kFreeSector);

  std::string directory;
  AppendEntry(directory, "Root Entry", kRoot, 1, kEndOfChain, 0);
  AppendEntry(directory, streamName, kStream, kNoEntry, 0, static_cast<std::uint32_t>(streamSize));
  AppendEntry(directory, "", kUnused, kNoEntry, 0, 0);
  AppendEntry(directory, "", kUnused, kNoEntry, 0, 0);

  std::string fat;
  for (std::size_t i = 0; i + 1 < streamSectors; ++i)
    AppendU32(fat, static_cast<std::uint32_t>(i + 1));
  AppendU32(fat, kEndOfChain);  // the stream's last sector
  AppendU32(fat, kEndOfChain);  // the directory
  for (std::size_t i = 0; i < fatSectors; ++i) AppendU32(fat, kFatSector);
  while (fat.size() < fatSectors * kSectorSize) AppendU32(fat, kFreeSector);

  out.write(header.data(), static_cast<std::streamsize>(header.size()));
  out.write(stream.data(), static_cast<std::streamsize>(stream.size()));
  out.write(directory.data(), static_cast<std::streamsize>(directory.size()));
  out.write(fat.data(), static_cast<std::streamsize>(fat.size()));
}

}  // namespace gustline::wb
