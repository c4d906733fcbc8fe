// The macros that declare and define a class's runtime members (desc, cast, isA, rxInit),
// spelled as the host SDK spells them.
#pragma once

#include "rxdict.h"
#include "rxregsvc.h"

#define ACRX_DECLARE_MEMBERS(CLASS_NAME)                                                   \
public:                                                                                    \
    AcRxClass* isA() const override;                                                       \
    static AcRxClass* gpDesc;                                                              \
    static AcRxClass* desc();                                                              \
    static CLASS_NAME* cast(const AcRxObject* inPtr)                                       \
    {                                                                                      \
        return (inPtr == nullptr || !inPtr->isKindOf(CLASS_NAME::desc()))                  \
                   ? nullptr                                                               \
                   : static_cast<CLASS_NAME*>(const_cast<AcRxObject*>(inPtr));             \
    }                                                                                      \
    static void rxInit();                                                                  \
    static void rxInit(AppNameChangeFuncPtr appNameChange)

// desc() answers the stored descriptor, or finds the class by name once it is registered.
#define ACRX_DEFINE_MEMBERS(CLASS_NAME)                                                    \
    AcRxClass* CLASS_NAME::gpDesc = nullptr;                                               \
    AcRxClass* CLASS_NAME::desc()                                                          \
    {                                                                                      \
        if (CLASS_NAME::gpDesc != nullptr)                                                 \
            return CLASS_NAME::gpDesc;                                                     \
        return CLASS_NAME::gpDesc = acrxFindAcRxClass(ACRX_T(#CLASS_NAME));                \
    }                                                                                      \
    AcRxClass* CLASS_NAME::isA() const { return CLASS_NAME::desc(); }

// Registering twice is harmless; a different class registered under the same name is a
// fatal conflict between modules.
#define ACRX_DEFINE_RXINIT_(CLASS_NAME, NEW_CLASS_EXPRESSION)                              \
    void CLASS_NAME::rxInit() { CLASS_NAME::rxInit(nullptr); }                             \
    void CLASS_NAME::rxInit(AppNameChangeFuncPtr appNameChange)                            \
    {                                                                                      \
        (void)appNameChange;                                                               \
        if (CLASS_NAME::gpDesc != nullptr) {                                               \
            AcRxClass* registered = acrxFindAcRxClass(ACRX_T(#CLASS_NAME));                \
            if (registered != nullptr) {                                                   \
                if (registered == CLASS_NAME::gpDesc)                                      \
                    return;                                                                \
                acrx_abort(ACRX_T("Class mismatch"));                                      \
            }                                                                              \
        }                                                                                  \
        CLASS_NAME::gpDesc = NEW_CLASS_EXPRESSION;                                         \
    }

// Abstract or never-filed classes: short registration, no constructor.
#define ACRX_NO_CONS_DEFINE_MEMBERS(CLASS_NAME, PARENT_CLASS)                              \
    ACRX_DEFINE_MEMBERS(CLASS_NAME)                                                        \
    ACRX_DEFINE_RXINIT_(CLASS_NAME, newAcRxClass(ACRX_T(#CLASS_NAME), ACRX_T(#PARENT_CLASS)))

// Transient classes that can be created by name but are never filed.
#define ACRX_CONS_DEFINE_MEMBERS(CLASS_NAME, PARENT_CLASS, VERNO)                          \
    ACRX_DEFINE_MEMBERS(CLASS_NAME)                                                        \
    static AcRxObject* make##CLASS_NAME() { return new CLASS_NAME(); }                     \
    ACRX_DEFINE_RXINIT_(CLASS_NAME, newAcRxClass(ACRX_T(#CLASS_NAME), ACRX_T(#PARENT_CLASS), \
                                                 VERNO, make##CLASS_NAME))

// Classes stored in drawings: DXF name and application name are bare tokens, stringized.
#define ACRX_DXF_DEFINE_MEMBERS(CLASS_NAME, PARENT_CLASS, DWG_VERSION, MAINTENANCE_VERSION, \
                                PROXY_FLAGS, DXF_NAME, APP)                                \
    ACRX_DEFINE_MEMBERS(CLASS_NAME)                                                        \
    static AcRxObject* make##CLASS_NAME() { return new CLASS_NAME(); }                     \
    void CLASS_NAME::rxInit() { CLASS_NAME::rxInit(nullptr); }                             \
    void CLASS_NAME::rxInit(AppNameChangeFuncPtr appNameChange)                            \
    {                                                                                      \
        if (CLASS_NAME::gpDesc != nullptr) {                                               \
            AcRxClass* registered = acrxFindAcRxClass(ACRX_T(#CLASS_NAME));                \
            if (registered != nullptr) {                                                   \
                if (registered == CLASS_NAME::gpDesc)                                      \
                    return;                                                                \
                acrx_abort(ACRX_T("Class mismatch"));                                      \
            }                                                                              \
        }                                                                                  \
        CLASS_NAME::gpDesc = newAcRxClass(ACRX_T(#CLASS_NAME), ACRX_T(#PARENT_CLASS),      \
                                          DWG_VERSION, MAINTENANCE_VERSION, PROXY_FLAGS,   \
                                          &make##CLASS_NAME, ACRX_T(#DXF_NAME),            \
                                          ACRX_T(#APP), appNameChange);                    \
    }
