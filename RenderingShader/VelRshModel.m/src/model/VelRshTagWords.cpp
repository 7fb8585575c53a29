// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTagWords.cpp Maps words to tags.
#include "RenderingShader/VelRshModel.m/src/model/VelRshTagWords.h"

#include "platform/base/VelCheck.h"
#include "platform/configuration/VelRbaConfiguration.h"

namespace {

constexpr VelSourcePosition unknownWord{"RenderingShader/VelRshModel.m/src/VelRshParameterBase", 209};

struct Row {
  const char* word;
  VelIRshParameterPrivate::Tag tag;
};

constexpr Row rows[] = {
#define VEL_RSH_TAG(Enumerator, Word) {Word, VelIRshParameterPrivate::Tag::Enumerator},
#include "RenderingShader/interfaces/VelRshTags.def"
#undef VEL_RSH_TAG
};

const Row* Find(const VelString& iWord) {
  for (const Row& row : rows) {
    if (iWord == row.word) return &row;
  }
  return nullptr;
}

/// Deliberately the tag "dpi" for a word that nobody knows: configurations of the field depend on it.
VelIRshParameterPrivate::Tag TagOf(const VelString& iWord) {
  if (const Row* row = Find(iWord)) return row->tag;
  VelCheck::Failed(unknownWord, "", "Could not parse tag", iWord.View());
  return VelIRshParameterPrivate::Tag::Dpi;
}

}  // namespace

std::optional<VelRshTagWords::Tag> VelRshTagWords::Next() {
  const VelString word = words_.Next();
  if (word.IsEmpty()) return std::nullopt;
  return TagOf(word);
}

bool VelRshTagWords::AreAllKnown(const VelString& iText) {
  VelToken words(iText);
  for (VelString word = words.Next(); !word.IsEmpty(); word = words.Next()) {
    if (Find(word) == nullptr) return false;
  }
  return true;
}

std::optional<VelString> VelRshTagWords::FindText(const VelString& iConfiguration, const VelString& iParameter) {
  VelString text;
  if (FAILED(VelRbaConfiguration::GetHierarchicalValue(iConfiguration, iParameter + ".Tag", text))) return std::nullopt;
  return text;
}
