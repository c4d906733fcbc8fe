// Queries of the class registry the tool prints.
#include "ModuleClasses.h"

#include "headless/CommandLine.h"
#include "rxclass.h"
#include "rxdict.h"

namespace quarvo {

std::vector<const AcRxClass*> ClassesOfApplication(const AcString& appName)
{
    std::vector<const AcRxClass*> classes;
    AcRxDictionary* dictionary = acrxClassDictionary;
    for (AcRxDictionaryIterator it(*dictionary); !it.done(); it.next()) {
        const AcRxClass* cls = AcRxClass::cast(it.object());
        if (cls == nullptr || cls->appName() == nullptr)
            continue;
        AcString app(cls->appName());
        const int bar = app.find(L'|');
        if (bar >= 0)
            app = app.left(bar);
        if (app == appName)
            classes.push_back(cls);
    }
    return classes;
}

std::wstring DescribeClass(const AcRxClass& cls)
{
    int dwgVersion = 0;
    int maintVersion = 0;
    cls.getClassVersion(dwgVersion, maintVersion);
    const AcRxClass* parent = cls.myParent();
    return headless::formatHostString(L"%-24s parent %-22s DXF %-20s version %d.%d proxy flags 0x%X",
                                      cls.name(), parent != nullptr ? parent->name() : L"-",
                                      cls.dxfName() != nullptr ? cls.dxfName() : L"-", dwgVersion,
                                      maintVersion, static_cast<unsigned>(cls.proxyFlags()));
}

}  // namespace quarvo
