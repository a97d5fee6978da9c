#include "shapes/ShapeFileReader.h"

#include <shapefil.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct ShpCloser {
  void operator()(SHPInfo* handle) const { SHPClose(handle); }
};
struct DbfCloser {
  void operator()(DBFInfo* handle) const { DBFClose(handle); }
};
struct ShapeDestroyer {
  void operator()(SHPObject* shape) const { SHPDestroyObject(shape); }
};
using Shp = std::unique_ptr<SHPInfo, ShpCloser>;
using Dbf = std::unique_ptr<DBFInfo, DbfCloser>;
using Shape = std::unique_ptr<SHPObject, ShapeDestroyer>;

[[noreturn]] void fail(const fs::path& file, const std::string& reason) {
  throw std::runtime_error(file.string() + ": " + reason);
}

// shapelib's hooks with its messages silenced: each failure is told once, by this reader, with
// the file it concerns.
SAHooks quietHooks() {
  SAHooks hooks;
  SASetupDefaultHooks(&hooks);
  hooks.Error = [](const char*) {};
  return hooks;
}

std::string raised(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

// The companion of shp with extension (".dbf"), in lower or upper case; empty when neither exists.
fs::path companion(const fs::path& shp, const std::string& extension) {
  for (const auto& candidate : {extension, raised(extension)}) {
    fs::path path = shp;
    path.replace_extension(candidate);
    std::error_code error;
    if (fs::is_regular_file(path, error)) return path;
  }
  return {};
}

fs::path requiredCompanion(const fs::path& shp, const std::string& extension) {
  fs::path path = companion(shp, extension);
  if (path.empty()) {
    path = shp;
    path.replace_extension(extension);
    fail(path, "missing (a shapefile comes with its .shx index and its .dbf table)");
  }
  return path;
}

ShapeLayer::Kind kindOf(const fs::path& shp, int shapeType) {
  using K = ShapeLayer::Kind;
  static const std::map<int, ShapeLayer::Kind> kinds{
      {SHPT_POINT, K::point},     {SHPT_POINTZ, K::point},     {SHPT_POINTM, K::point},
      {SHPT_ARC, K::line},        {SHPT_ARCZ, K::line},        {SHPT_ARCM, K::line},
      {SHPT_POLYGON, K::polygon}, {SHPT_POLYGONZ, K::polygon}, {SHPT_POLYGONM, K::polygon}};
  const auto found = kinds.find(shapeType);
  if (found == kinds.end()) {
    fail(shp, std::string("shapes of type ") + SHPTypeName(shapeType) +
                  " are not read (only Point, Arc and Polygon, with or without Z or M)");
  }
  return found->second;
}

// shapelib takes the kind of a layer from its index and reads the shapes without looking at the
// header of the .shp: a file that is not a shapefile must be caught here. Both files open with
// the file code 9994, big-endian.
void requireShapefileHeader(const fs::path& file) {
  unsigned char code[4] = {};
  std::ifstream stream(file, std::ios::binary);
  stream.read(reinterpret_cast<char*>(code), sizeof code);
  if (!stream || code[0] != 0 || code[1] != 0 || code[2] != 0x27 || code[3] != 0x0A) {
    fail(file, "not a shapefile (its header is damaged)");
  }
}

CoordinateSystem coordinateSystemOf(const fs::path& shp,
                                    const std::optional<CoordinateSystem>& given) {
  if (given) return *given;
  const fs::path prj = companion(shp, ".prj");
  if (prj.empty()) {
    fs::path expected = shp;
    expected.replace_extension(".prj");
    fail(expected, "missing: the layer's coordinate system is unknown");
  }
  return CoordinateSystem::fromPrjFile(prj);
}

// Whether text is well-formed UTF-8 as far as its lead and continuation bytes go.
bool isUtf8(const std::string& text) {
  std::size_t following = 0;
  for (const unsigned char c : text) {
    if (following > 0) {
      if ((c & 0xC0) != 0x80) return false;
      --following;
    } else if (c >= 0xC2 && c <= 0xDF) {
      following = 1;
    } else if (c >= 0xE0 && c <= 0xEF) {
      following = 2;
    } else if (c >= 0xF0 && c <= 0xF4) {
      following = 3;
    } else if (c >= 0x80) {
      return false;
    }
  }
  return following == 0;
}

// text as UTF-8: as it is when it is UTF-8 already, otherwise each byte as the Latin-1 character
// of that number.
std::string utf8(const std::string& text) {
  if (isUtf8(text)) return text;
  std::string converted;
  for (const unsigned char c : text) {
    if (c < 0x80) {
      converted += static_cast<char>(c);
    } else {
      converted += static_cast<char>(0xC0 | (c >> 6));
      converted += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return converted;
}

std::vector<std::string> columnsOf(DBFInfo* table) {
  std::vector<std::string> columns;
  for (int field = 0; field < DBFGetFieldCount(table); ++field) {
    char name[XBASE_FLDNAME_LEN_READ + 1] = {};
    DBFGetFieldInfo(table, field, name, nullptr, nullptr);
    columns.push_back(utf8(name));
  }
  return columns;
}

std::vector<std::string> valuesOf(const fs::path& dbf, DBFInfo* table, int record) {
  std::vector<std::string> values;
  for (int field = 0; field < DBFGetFieldCount(table); ++field) {
    if (DBFIsAttributeNULL(table, record, field)) {
      values.emplace_back();
      continue;
    }
    const char* value = DBFReadStringAttribute(table, record, field);
    if (!value) fail(dbf, "record " + std::to_string(record) + " cannot be read (damaged file)");
    values.push_back(utf8(value));
  }
  return values;
}

// The parts of shape; a point is one part of one point.
std::vector<ShapeLayer::Part> partsOf(const fs::path& shp, const SHPObject& shape, int index) {
  std::vector<ShapeLayer::Part> parts;
  const int count = std::max(shape.nParts, 1);
  for (int part = 0; part < count; ++part) {
    const int first = shape.nParts == 0 ? 0 : shape.panPartStart[part];
    const int end = part + 1 < shape.nParts ? shape.panPartStart[part + 1] : shape.nVertices;
    if (first < 0 || end < first || end > shape.nVertices) {
      fail(shp, "shape " + std::to_string(index) + " has parts outside its points (damaged file)");
    }
    ShapeLayer::Part points;
    for (int vertex = first; vertex < end; ++vertex) {
      points.push_back({shape.padfX[vertex], shape.padfY[vertex]});
    }
    parts.push_back(std::move(points));
  }
  return parts;
}

ShapeLayer::Feature featureOf(const fs::path& shp, SHPInfo* shapes, int layerType, int index) {
  const Shape shape(SHPReadObject(shapes, index));
  if (!shape) fail(shp, "shape " + std::to_string(index) + " cannot be read (damaged file)");
  if (shape->nSHPType == SHPT_NULL) return {};
  if (shape->nSHPType != layerType) {
    fail(shp, "shape " + std::to_string(index) + " has type " + SHPTypeName(shape->nSHPType) +
                  " in a " + SHPTypeName(layerType) + " layer (damaged file)");
  }
  return {partsOf(shp, *shape, index), {}};
}

}  // namespace

ShapeLayer ShapeFileReader::read(const fs::path& shp,
                                 const std::optional<CoordinateSystem>& coordinateSystem) {
  // In lower or upper case, as shapelib spells the extensions it looks for.
  if (shp.extension() != ".shp" && shp.extension() != ".SHP") fail(shp, "not a .shp file");
  std::error_code error;
  if (!fs::is_regular_file(shp, error)) fail(shp, "no such file");
  requireShapefileHeader(shp);
  requireShapefileHeader(requiredCompanion(shp, ".shx"));
  const fs::path dbf = requiredCompanion(shp, ".dbf");
  CoordinateSystem system = coordinateSystemOf(shp, coordinateSystem);

  SAHooks hooks = quietHooks();
  const Shp shapes(SHPOpenLL(shp.string().c_str(), "rb", &hooks));
  if (!shapes) fail(shp, "not a shapefile, or its .shx index does not match it");
  int count = 0;
  int type = SHPT_NULL;
  SHPGetInfo(shapes.get(), &count, &type, nullptr, nullptr);
  const ShapeLayer::Kind kind = kindOf(shp, type);
  const Dbf table(DBFOpenLL(dbf.string().c_str(), "rb", &hooks));
  if (!table) fail(dbf, "not a dBASE table");
  if (DBFGetRecordCount(table.get()) != count) {
    fail(dbf, std::to_string(DBFGetRecordCount(table.get())) + " record(s) for " +
                  std::to_string(count) + " shape(s) in " + shp.filename().string());
  }

  ShapeLayer layer(shp, kind, std::move(system), columnsOf(table.get()));
  for (int index = 0; index < count; ++index) {
    ShapeLayer::Feature feature = featureOf(shp, shapes.get(), type, index);
    feature.values = valuesOf(dbf, table.get(), index);
    layer.addFeature(std::move(feature));
  }
  return layer;
}
