// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradePlanRow.h One thing that the upgrade of a shader would do.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHUPGRADEPLANROW_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHUPGRADEPLANROW_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/base/HResult.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"

/// What becomes of one parameter, of one connection, or of one value of a shader that is connected.
///
/// Values are texts, independent of any locale: `true`, `-3`, the shortest decimal that reads back as the same number,
/// `(0.5, 0.25, 1, 1)` for several numbers, `"a text"` in quotes with \" \\ \n \t and \xNN for what would not print,
/// and `document "name"`. An empty text stands for no value, as does the one of a sub-shader, which has none, and of a
/// type that the component does not know.
struct VEL_RSH_MODEL_API VelRshUpgradePlanRow {
  /// Name and start-up together say which parameter of today takes over from which of before; of several with both in
  /// common they pair in order. What each kind fills in beside itself and `parameter` stands behind it.
  enum class Kind {
    /// The upgrade ends here with `code`: from this parameter on no value is carried over, and no connection at all.
    /// `formerStartUp` is empty where its name or type cannot be read; `formerPosition` is 0 where it is the factory
    /// that fails, which leaves every value behind. At most one, the first of all.
    Stops,
    /// The value stays and is today's default. Positions, `startUp`, the three values.
    Kept,
    /// The value stays, and today's default is another. Which default the version of before had is not known: this
    /// tells new defaults and edited values alike. As Kept.
    KeptOverDefault,
    /// The parameter stays, its value does not: a text, a matrix, what lies behind a stop, a document where there was
    /// none, what a connected shader gives back. As Kept.
    Replaced,
    /// None of before takes part. `position`, `startUp`, `after`, `standard`.
    Added,
    /// The name stays with another start-up, and the value is lost. As Kept, and `formerStartUp`.
    Retyped,
    /// None of its name is left. `formerPosition`, `formerStartUp`, `before`.
    Dropped,
    /// The parameter is connected again to the very same `shader`. Positions.
    ConnectionKept,
    /// The parameter was connected to `shader`, and no parameter of today takes that over, or the upgrade stops before.
    /// `formerPosition`; `position` too where the parameter stays.
    ConnectionLost,
    /// Today's version itself connects the parameter, to a shader of the type `shaderType`. `position`; `shader` is
    /// empty for a new one, which is not there yet.
    ConnectionMade,
    /// Another shader, `shader`, is connected to this one, if need be through others, and its parameter follows by its
    /// tag: `before` and `after`, `startUp`, and `position` in that shader.
    MappingTaken
  };

  Kind kind = Kind::Kept;
  VelString parameter;        ///< Its name.
  VelString startUp;          ///< The type of its value after the upgrade, for instance "VelRmaScalar".
  VelString formerStartUp;    ///< The one before, also where they are the same.
  int position = 0;           ///< Where it stands in its shader after the upgrade, from 1; 0 when it does not.
  int formerPosition = 0;     ///< Where it stands now; 0 when it does not.
  VelUnicodeString before;    ///< The value now.
  VelUnicodeString after;     ///< The value after the upgrade.
  VelUnicodeString standard;  ///< The default of today's version.
  VelIRshShader_var shader;   ///< With a reference of the row's own.
  VelString shaderType;       ///< The type of `shader`.
  HRESULT code = S_OK;        ///< Only of Stops.

  /// @return the row as a sentence without a line end, in English, for instance "'gloss' keeps 0.5; its default is 0.8"
  VelUnicodeString Text() const;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHUPGRADEPLANROW_H
