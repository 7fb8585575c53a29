// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager.cpp The life of the manager, its factories and their types.
#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"

#include <utility>

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshShaderManagerTrace.h"
#include "platform/base/VelCallOnExit.h"
#include "platform/base/VelEnvironment.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelMetaClass.h"

namespace {

constexpr const char* className = "VelRshShaderManager";
constexpr const char* factoryInterface = "VelIRshShaderFactory";
constexpr const char* hostFactoryInterface = "VelIRmaShaderFactory";
constexpr int exitPriority = 3;
constexpr unsigned int rescan = 1;

/// Read once: later changes of the environment are deliberately not seen.
bool AreAllShadersWanted() {
  static const bool areWanted = [] {
    VelString value;
    return VelEnvironment::Get("VelRdgAllShaders", value);
  }();
  return areWanted;
}

/// A void output is what a vector shader can stand in for.
bool SuitsOutput(const VelString& iWanted, const VelString& iOutput) {
  return iWanted.IsEmpty() || iWanted == iOutput || (iWanted == "VelRmaVoid" && iOutput == "VelRmaVector");
}

}  // namespace

constinit VelClassTrace velRshShaderManagerTrace{className};

VelRshShaderManager* VelRshShaderManager::_manager = nullptr;

VelRshShaderManager* VelRshShaderManager::GetManager() {
  if (_manager == nullptr) {
    _manager = new VelRshShaderManager;
    _manager->Init();
    VelCallOnExit(static_cast<int (*)(int)>(&VelRshShaderManager::CleanUp), exitPriority);
  }
  return _manager;
}

int VelRshShaderManager::CleanUp(int) {
  if (VelRshShaderManager* const manager = std::exchange(_manager, nullptr)) {
    // The factories are extensions of the manager and keep it: they have to go before it can.
    manager->BeginEnd();
    manager->EndLife();
    manager->Release();
  }
  return 0;
}

VelRshShaderManager::VelRshShaderManager() : VelCommand(nullptr, nullptr, MetaObject()) {}

VelRshShaderManager::VelRshShaderManager(const VelRshShaderManager& iOther)
    : VelCommand(iOther),
      factories_(iOther.factories_),
      typeFactories_(iOther.typeFactories_),
      typeList_(iOther.typeList_) {
  for (VelBaseUnknown* factory : factories_) {
    if (factory != nullptr) factory->AddRef();
  }
}

VelRshShaderManager& VelRshShaderManager::operator=(const VelRshShaderManager& iOther) {
  if (this == &iOther) return *this;
  VelCommand::operator=(iOther);
  const VelListPtrVelBaseUnknown former = std::exchange(factories_, iOther.factories_);
  for (VelBaseUnknown* factory : factories_) {
    if (factory != nullptr) factory->AddRef();
  }
  for (VelBaseUnknown* factory : former) {
    if (factory != nullptr) factory->Release();
  }
  typeFactories_ = iOther.typeFactories_;
  typeList_ = iOther.typeList_;
  return *this;
}

void VelRshShaderManager::BeginEnd() {
  if (std::exchange(hasEndBegun_, true)) return;
  velRshShaderManagerTrace.Print(5, "(VelRshShaderManager::~VelRshShaderManager) Destructor\n");
  CleanUp();
}

VelRshShaderManager::~VelRshShaderManager() {
  BeginEnd();
  EndLife();
  velRshShaderManagerTrace.Print(5, "(VelRshShaderManager::~VelRshShaderManager) Done\n");
}

void VelRshShaderManager::CleanUp() {
  velRshShaderManagerTrace.Print(4, "(VelRshShaderManager::CleanUp) \n");
  for (VelBaseUnknown* factory : factories_) {
    if (factory != nullptr) factory->Release();
  }
  velRshShaderManagerTrace.Print(4, "(VelRshShaderManager::CleanUp) Done\n");
}

const VelMetaClass& VelRshShaderManager::MetaObject() noexcept {
  static const VelMetaClass& metaClass = fct_RetrieveMetaObject(
      className, &VelCommand::MetaObject(), VelTypeOfClass::Implementation, "VelNull", "RenderingShader");
  return metaClass;
}

const char* VelRshShaderManager::ClassId() noexcept { return MetaObject().IdentifierName(); }

void VelRshShaderManager::Init() {
  velRshShaderManagerTrace.Print(4, "(VelRshShaderManager::Init)\n");
  if (factories_.IsEmpty()) factories_ = DiscoverFactories();
}

VelListPtrVelBaseUnknown VelRshShaderManager::DiscoverFactories() const {
  VelBaseUnknown* hostFactory = nullptr;
  VelListPtrVelBaseUnknown others;
  for (const VelString& name : GetMetaObject().ListOfSupportedInterface()) {
    velRshShaderManagerTrace.Print(7, "(VelRshShaderManager::Init) Supported interface: '%s'\n", name);
    if (name == factoryInterface) continue;
    const VelString framework(VelQueryFramework(className, name.View()));
    if (framework.IsEmpty()) continue;
    velRshShaderManagerTrace.Print(4, "(VelRshShaderManager::Init) Framework: '%s'\n", framework);
    VelBaseUnknown_var hFactory;
    auto& manager = const_cast<VelRshShaderManager&>(*this);
    if (FAILED(manager.QueryInterfaceByName(name.CString(), hFactory.Receive())) || !hFactory) continue;
    if (!hFactory->IsAKindOf(factoryInterface)) continue;
    velRshShaderManagerTrace.Print(4, "(VelRshShaderManager::Init) Adding interface: '%s'\n", name);
    if (name == hostFactoryInterface) {
      hostFactory = hFactory.Detach();
    } else {
      others.Append(hFactory.Detach());
    }
  }
  VelListPtrVelBaseUnknown factories;
  factories.Append(hostFactory);
  for (VelBaseUnknown* factory : others) factories.Append(factory);
  return factories;
}

HRESULT VelRshShaderManager::LoadTypeList() {
  Init();
  for (VelBaseUnknown* object : factories_) {
    if (object != nullptr) TakeTypesOf(static_cast<VelIRshShaderFactory&>(*object));
  }
  typeListLoaded_ = true;
  return S_OK;
}

void VelRshShaderManager::TakeTypesOf(VelIRshShaderFactory& iFactory) {
  VelListValVelString types;
  if (FAILED(iFactory.ListShaderTypes(types))) return;
  for (const VelString& type : types) {
    if (typeList_.Locate(type) != 0) continue;
    typeList_.Append(type);
    typeFactories_.Append(&iFactory);
  }
}

void VelRshShaderManager::EnsureTypeList() {
  if (!typeListLoaded_) static_cast<void>(LoadTypeList());
}

VelIRshShaderFactory* VelRshShaderManager::FindFactory(const VelString& iType, bool& oIsKnown) const {
  const int position = typeList_.Locate(iType);
  oIsKnown = position != 0;
  return oIsKnown ? static_cast<VelIRshShaderFactory*>(typeFactories_[position]) : nullptr;
}

HRESULT VelRshShaderManager::ListAvailableShaders(unsigned int iUsage, const VelString& iOutputType,
                                                  VelListValVelString& oTypes, VelListValVelUnicodeString& oNames) {
  // The environment is looked at by the first call, whatever becomes of it.
  static_cast<void>(AreAllShadersWanted());
  if (!typeListLoaded_ || iUsage == rescan) static_cast<void>(LoadTypeList());
  HRESULT result = E_FAIL;
  for (int position = 1; position <= typeList_.Size(); ++position) {
    auto* const factory = static_cast<VelIRshShaderFactory*>(typeFactories_[position]);
    const VelString type = typeList_[position];
    if (factory == nullptr || !Suits(*factory, type, iUsage, iOutputType, result)) continue;
    VelUnicodeString name;
    result = factory->GetDisplayName(type, name);
    if (FAILED(result)) continue;
    oTypes.Append(type);
    oNames.Append(name);
  }
  return result;
}

bool VelRshShaderManager::Suits(VelIRshShaderFactory& iFactory, const VelString& iType, unsigned int iUsage,
                                const VelString& iOutputType, HRESULT& oResult) {
  std::uint32_t flags = 0;
  VelString output;
  oResult = iFactory.GetUsageFlags(iType, flags);
  if (FAILED(oResult)) return false;
  oResult = iFactory.GetOutputType(iType, output);
  if (FAILED(oResult)) return false;
  if (flags != 0 && (flags & iUsage) == 0) return false;
  return AreAllShadersWanted() || SuitsOutput(iOutputType, output);
}

HRESULT VelRshShaderManager::CreateShader(const VelIContainer_var& iContainer, const VelString& iType,
                                          VelIRshShader** oShader, unsigned char iOption) {
  velRshShaderManagerTrace.Print(4, "(VelRshShaderManager::CreateShader) iType='%s'\n", iType);
  if (oShader == nullptr) return E_FAIL;
  *oShader = nullptr;
  if (!iContainer) return E_FAIL;
  EnsureTypeList();
  bool isKnown = false;
  VelIRshShaderFactory* const factory = FindFactory(iType, isKnown);
  if (!isKnown) return E_FAIL;
  VelIRshShader_var hShader = VelRshModelFactoryFeature(*iContainer).CreateShader(VelUnicodeString(iType));
  if (!hShader) return E_FAIL;
  if (factory == nullptr) return E_UNEXPECTED;
  // Deliberately no look at the result: a shader with some of its parameters is one all the same.
  static_cast<void>(factory->InitializeShader(hShader.Get(), iOption));
  *oShader = hShader.Detach();
  return S_OK;
}
