// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshAppearanceUpdater.h Brings a material's appearance up to date with a parameter that changed.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_VELRSHAPPEARANCEUPDATER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_VELRSHAPPEARANCEUPDATER_H

#include <cstdint>
#include <optional>

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/materials/VelIRmaAppearanceCache.h"
#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "platform/trace/VelTraceHandle.h"

class VelIRenderingMaterial;

/// Made for one parameter, runs one or two updates, and is gone. A material keeps file and pixels of the texture that
/// feeds each of its channels; the updates keep them true, as well as the values that sub-shaders take over from the
/// material's top shader.
///
/// What is done is told on the channel "VelRshAppearanceUpdater", what it took on
/// "VelRshAppearanceUpdaterPerformanceTime". Nothing is returned; a picture that cannot be made leaves the entry of its
/// channel as it was. In the edition mode of silent propagation nothing is done. Thread: the application thread.
class VelRshAppearanceUpdater {
 public:
  explicit VelRshAppearanceUpdater(VelIRshParameter& iParameter);

  VelRshAppearanceUpdater(const VelRshAppearanceUpdater&) = delete;
  VelRshAppearanceUpdater& operator=(const VelRshAppearanceUpdater&) = delete;

  /// Seats the updater on another parameter.
  void StoreParameter(VelIRshParameter& iParameter);

  /// After the value changed: copies mapping values into what is connected to the top shader, draws SVG textures anew,
  /// converts a bump level, and updates what is connected to a texture's shader. That last step seats the updater on
  /// the last of those parameters, where it stays.
  void OnValueUpdate();

  /// After the connection changed: injects the top shader's values into the connected shader, loads its texture or
  /// resets the entry, and aligns its bump level.
  void OnConnectionUpdate();

 private:
  using Parameters = VelRshReaderParameterCollection::Parameters;

  /// What an update works on.
  struct Setting {
    VelIRmaAppearanceCache_var hCache;
    VelIRshShader_var hRoot;    ///< The shader that the material carries.
    Parameters rootParameters;  ///< In its order.
  };

  /// How an SVG texture is drawn.
  struct Drawing {
    std::optional<int> dpi;
    std::optional<VelUnicodeString> groups;  ///< Names, separated by ";".
  };

  bool IsAllowed() const;
  VelIRshParameter_var ResolveParameter() const;
  bool FindRoot(const VelVar<VelIRenderingMaterial>& iMaterial, Setting& oSetting) const;

  // The steps of OnValueUpdate.
  bool FindSettingOfValue(const VelIRshParameter_var& iParameter, VelIRshShader_var& oParent, Setting& oSetting) const;
  void CopyMapping(const VelIRshParameter_var& iParameter, const VelIRshShader_var& iParent,
                   const Setting& iSetting) const;
  void DrawConnectedTextures(const VelIRshParameter_var& iParameter, const Setting& iSetting) const;
  void DrawConnectedTexture(const VelIRshParameter_var& iRootParameter, const Drawing& iOwn,
                            const Setting& iSetting) const;
  void ConvertBump(const VelIRshParameter_var& iParameter, const VelIRshShader_var& iParent,
                   const Setting& iSetting) const;
  void WriteConvertedBump(const Parameters& iConnected, float iLevel) const;
  void FollowTexture(const VelIRshShader_var& iParent);

  // The steps of OnConnectionUpdate.
  bool FindSettingOfConnection(const VelIRshParameter_var& iParameter, Setting& oSetting) const;
  void InjectValues(const Parameters& iConnected, const Parameters& iRootParameters) const;
  bool LoadTexture(const Parameters& iConnected, VelIRmaAppearanceCache& ioCache) const;
  void LoadPlainTexture(VelBaseUnknown& iDocument, VelIRmaAppearanceCache& ioCache) const;
  void LoadSvgTexture(VelBaseUnknown& iDocument, const Parameters& iConnected, VelIRmaAppearanceCache& ioCache) const;
  void AlignBump(const VelIRshShader_var& iShader, const Parameters& iConnected,
                 const Parameters& iRootParameters) const;

  /// Draws an SVG texture into the entry of a channel.
  void Rasterise(const VelString& iName, std::uint32_t iSlot, VelUnicodeString iPath, const VelUnicodeString& iGroups,
                 int iDpi, VelIRmaAppearanceCache& ioCache) const;

  /// Writes a bump level where it differs, and tells.
  void WriteBump(VelIRshParameter& ioBump, float iLevel) const;

  VelTraceHandle trace_;
  VelTraceHandle performance_;
  VelBaseUnknown_WR parameter_;
  VelString name_;
  std::uint32_t slot_ = 0;  ///< 0 feeds no channel.
  bool isTexture_ = false;
  bool hasMapping_ = false;
  bool hasDpi_ = false;
  bool hasSvgGroup_ = false;
  bool hasBump_ = false;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_VELRSHAPPEARANCEUPDATER_H
