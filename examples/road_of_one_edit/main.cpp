// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file main.cpp A host program that makes a material of real files, edits it, and shows what each edit sets in
/// motion.
#include <cstdio>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelRshFeatureModelerCopier.h"
#include "examples/road_of_one_edit/RoadMaterial.h"
#include "examples/road_of_one_edit/RoadPage.h"
#include "examples/road_of_one_edit/RoadRecorder.h"
#include "examples/road_of_one_edit/RoadTree.h"
#include "examples/road_of_one_edit/RoadUpgrade.h"
#include "platform/session/VelPlatformSession.h"
#include "platform/viewer/VelIRmaVisuTextureCoordinateTransformation.h"

namespace fs = std::filesystem;

namespace {

void Print(const std::vector<std::string>& iLines) {
  for (const std::string& line : iLines) std::printf("   %s\n", line.c_str());
}

void PrintText(const VelUnicodeString& iText) {
  std::istringstream lines{std::string(iText.View())};
  for (std::string line; std::getline(lines, line);) Print({line});
}

/// What the shaders are called in the road.
RoadRecorder::Names NamesOf(const RoadMaterial& iMaterial) {
  return {{iMaterial.hShader->GetComponent(), "material"},
          {iMaterial.hDrawing->GetComponent(), "drawing"},
          {iMaterial.hNormals->GetComponent(), "normals"}};
}

/// Prints and pages the tree after an edit, what changed in it marked, and the road that led there.
template <class Value>
bool ShowEdit(const char* iTitle, const char* iName, Value iBefore, Value iAfter, const RoadMaterial& iMaterial,
              RoadPage& ioPage) {
  std::printf("%s\n", iTitle);
  const RoadTree before = RoadTree::Read(*iMaterial.hShader);
  std::vector<std::string> road;
  {
    const RoadRecorder recorder(NamesOf(iMaterial));
    if (!iMaterial.Edit(iName, iBefore, iAfter)) return false;
    road = recorder.Lines();
  }
  Print(road);
  Print(RoadPage::Channels(iMaterial.hMaterial));
  const std::vector<std::string> tree = RoadTree::Read(*iMaterial.hShader).Lines(&before);
  return ioPage.Add(iTitle, iName, tree, road, iMaterial.hMaterial);
}

/// What a viewer applies to the texture coordinates of a shader.
void PrintTransformation(VelIRshShader& iShader) {
  const VelIRmaVisuTextureCoordinateTransformation_var hMapping(&iShader);
  Vel3x3Matrix matrix;
  if (!hMapping || FAILED(hMapping->GetTransformation(matrix))) return;
  std::printf("   texture coordinates are multiplied with, row by row:");
  // Adding 0 makes a 0 of the negative one.
  for (const float figure : matrix.GetValues()) std::printf(" %g", static_cast<double>(figure + 0.0F));
  std::printf("\n");
}

bool ShowUpgrade(const RoadMaterial& iMaterial, RoadUpgrade& ioUpgrade) {
  std::printf(
      "7. A shader of the type \"QuiltedLeather\", whose author brings out a second version: what an upgrade would "
      "do\n");
  if (!ioUpgrade.Make(iMaterial.hContainer) || !ioUpgrade.Publish("after")) return false;
  const RoadTree before = RoadTree::Read(*ioUpgrade.hShader);
  VelRshUpgradePlan plan;
  if (!ioUpgrade.Plan(plan)) return false;
  PrintText(plan.Text());
  std::printf("   And what it did\n");
  if (!ioUpgrade.Run()) return false;
  Print(RoadTree::Read(*ioUpgrade.hShader).Lines(&before));
  return true;
}

bool ShowCopy(const RoadMaterial& iMaterial) {
  std::printf("8. A copy of the graph in another container\n");
  const VelIContainer_var hOther = VelIContainer::Create();
  const VelIRshShader_var hCopy = VelRshFeatureModelerCopier(*hOther).Copy(iMaterial.hShader);
  if (!hCopy) return false;
  const RoadTree original = RoadTree::Read(*iMaterial.hShader);
  Print(RoadTree::Read(*hCopy).Lines(&original));
  return true;
}

/// @return false when something could not be had; the traces then say what
bool ShowRoad(RoadUpgrade& ioUpgrade, const std::string& iOutput) {
  RoadMaterial material;
  RoadPage page(iOutput);
  std::printf("1. A rendering material of 200 mm by 100 mm with a shader of the type \"CustomShader\"\n");
  if (!material.Make() || !material.Follow()) return false;
  std::printf("2. A drawing and a normal map, each in a texture shader that feeds a channel\n");
  if (!material.Decorate(VEL_EXAMPLE_FOLDER "/files")) return false;
  const RoadTree made = RoadTree::Read(*material.hShader);
  Print(made.Lines());
  Print(RoadPage::Channels(material.hMaterial));
  PrintTransformation(*material.hDrawing);
  if (!page.Add("2. The material as it was made", "made", made.Lines(), {}, material.hMaterial)) return false;

  if (!ShowEdit("3. An editor changes scale_u from 1 to 2", "scale_u", 1.0, 2.0, material, page)) return false;
  PrintTransformation(*material.hDrawing);
  if (!ShowEdit("4. An editor changes dpi from 96 to 192", "dpi", 96, 192, material, page)) return false;
  if (!ShowEdit("5. An editor shows two groups of the drawing", "group_names", "", "cloth;seam", material, page))
    return false;
  std::printf("6. The tree after the edits; a star marks what changed\n");
  Print(RoadTree::Read(*material.hShader).Lines(&made));
  if (!ShowUpgrade(material, ioUpgrade) || !ShowCopy(material) || !page.Write()) return false;
  std::printf("9. The files to look at\n");
  Print(page.Files());
  return true;
}

/// The dictionaries of the build or of an installation lie beside the program's folder.
std::string FindDictionaries(const char* iProgram) {
  const auto root = fs::absolute(iProgram).parent_path().parent_path();
  return (root / "lib" / "dictionaries").string();
}

}  // namespace

/// Argument: the folder for the page and its pictures, "road_of_one_edit" in the current folder if there is none.
int main(int argc, char** argv) {
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  const std::string output = argc > 1 ? argv[1] : "road_of_one_edit";
  RoadUpgrade upgrade(VEL_EXAMPLE_FOLDER "/types", output + "/types");
  // The files of types that the options name are read at the start of the session.
  if (!upgrade.Publish("before")) return 1;
  VelPlatformOptions options;
  options.dictionaries = {FindDictionaries(argv[0])};
  // An installation finds its catalogs by itself.
  options.catalogs = {VEL_EXAMPLE_CATALOGS "/VelRmaCatalog.feat", VEL_EXAMPLE_CATALOGS "/VelRmaMaterialCatalog.feat"};
  options.shaderTypes = {output + "/types"};
  VelPlatformSession session;
  if (FAILED(session.Start(options))) return 1;
  RoadRecorder::SwitchOff();
  const bool isShown = ShowRoad(upgrade, output);
  if (!isShown) std::printf("   The lines above say why.\n");
  // What is kept beyond a session is warned of.
  upgrade.hShader = nullptr;
  return session.End() == S_OK && isShown ? 0 : 1;
}
