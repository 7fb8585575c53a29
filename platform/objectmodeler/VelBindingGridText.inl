// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBindingGridText.inl The main function of the program that prints a binding grid as a dictionary file.
//
// Built once per module (cmake/VelBindings.cmake), with VEL_GRID_FILE naming the grid and VEL_GRID_LIBRARY the file of
// the module's library.
#include <cstdio>

int main() {
  std::puts("# Made from " VEL_GRID_FILE "; edit that file instead.\nvelrsh-dictionary 1");
#define VEL_GRID_MODULE(Module, Framework) \
  std::puts("module " #Module "\nframework " #Framework "\nlibrary " VEL_GRID_LIBRARY);
#define VEL_GRID_TYPE(LateType, Base) std::puts("type " #LateType " " #Base);
#define VEL_GRID_CLASS(Class, Base, Kind) std::puts("class " #Class " " #Kind);
#define VEL_GRID_CELL(Class, LateType, Lifetime, Interface, Mechanism) \
  VEL_GRID_PRINT_##Mechanism(#LateType " " #Interface " " #Mechanism " " #Lifetime " " #Class)
#define VEL_GRID_PRINT_no(Text)
#define VEL_GRID_PRINT_TIE(Text) std::puts("bind " Text);
#define VEL_GRID_PRINT_BOA(Text) std::puts("bind " Text);
#define VEL_GRID_EXTEND(Class, LateType) std::puts("extend " #LateType " " #Class);
#include VEL_GRID_FILE
  return 0;
}
