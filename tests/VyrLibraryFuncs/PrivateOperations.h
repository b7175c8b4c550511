// The private operations of the function classes, for the tests: a section for each class with a forwarder for each
// operation.
#pragma once

#include <VyrLibraryFuncs/html/MSHTMLImgFuncs.h>
#include <VyrLibraryFuncs/metadata/AttributesFuncs.h>
#include <VyrLibraryFuncs/metadata/OfficePropertyFuncs.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>
#include <VyrLibraryFuncs/select/FilterFuncs.h>
#include <VyrLibraryFuncs/shell/ControlPanelFuncs.h>
#include <VyrLibraryFuncs/shell/FeatureControlFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/ApplicationFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/StyleFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h>
#include <utility>
#include <vector>

namespace VyrLibraryFuncs {

struct PrivateOperations
{
    // ApplicationFuncs

    static CString GetLocalDataApplication(CString key) { return ApplicationFuncs::GetLocalDataApplication(key); }
    static CString GetUrl(CString section) { return ApplicationFuncs::GetUrl(section); }
    static int IsVersionStagePrefix(CString word) { return ApplicationFuncs::IsVersionStagePrefix(word); }

    // AttributesFuncs

    static int SetModifiedReadOnlyAttributes(CString path, int state)
    {
        return AttributesFuncs::SetModifiedReadOnlyAttributes(path, state);
    }
    static int SetModifiedHiddenAttributes(CString path, int state)
    {
        return AttributesFuncs::SetModifiedHiddenAttributes(path, state);
    }
    static int SetModifiedSystemAttributes(CString path, int state)
    {
        return AttributesFuncs::SetModifiedSystemAttributes(path, state);
    }
    static int SetModifiedArchiveAttributes(CString path, int state)
    {
        return AttributesFuncs::SetModifiedArchiveAttributes(path, state);
    }
    static int SetModifiedTemporaryAttributes(CString path, int state)
    {
        return AttributesFuncs::SetModifiedTemporaryAttributes(path, state);
    }
    static int SetModifiedNotContentIndexedAttributes(CString path, int state)
    {
        return AttributesFuncs::SetModifiedNotContentIndexedAttributes(path, state);
    }
    static int SetModifiedAttributes(CString path, int state, int index)
    {
        return AttributesFuncs::SetModifiedAttributes(path, state, index);
    }
    static int SetAttributes(CString path, int isSet, int index)
    {
        return AttributesFuncs::SetAttributes(path, isSet, index);
    }
    static int GetSelectedAttributes(CString text, CString letter)
    {
        return AttributesFuncs::GetSelectedAttributes(text, letter);
    }

    // MSHTMLImgFuncs

    static int IsImageBiggerThanClient(CRect client, std::int32_t imageWidth, std::int32_t imageHeight)
    {
        return MSHTMLImgFuncs::IsImageBiggerThanClient(client, imageWidth, imageHeight);
    }
    static double GetClientRatio(CRect client) { return MSHTMLImgFuncs::GetClientRatio(client); }
    static double GetImageRatio(std::int32_t imageWidth, std::int32_t imageHeight)
    {
        return MSHTMLImgFuncs::GetImageRatio(imageWidth, imageHeight);
    }

    // NameFuncs

    static CString GetSequenceNumber(int digits, int number) { return NameFuncs::GetSequenceNumber(digits, number); }
    static CString GetScaleString(int digits, int number) { return NameFuncs::GetScaleString(digits, number); }
    static COleDateTime GetSelectedDateTime(CString path, int target)
    {
        return NameFuncs::GetSelectedDateTime(std::move(path), target);
    }
    static CString GetResolveConflictNumber(CString format, int number)
    {
        return NameFuncs::GetResolveConflictNumber(std::move(format), number);
    }

    // FilterFuncs

    static int IsMatchCondition(CString name, FilterFuncs::FILTERITEM item)
    {
        return FilterFuncs::IsMatchCondition(name, item);
    }

    // OfficePropertyFuncs

    static int SetDumpBuiltInProps(IPropertySetStorage* storage, std::uint32_t propertyId, PROPVARIANT* value)
    {
        return OfficePropertyFuncs::SetDumpBuiltInProps(storage, propertyId, value);
    }

    // ProgramsFeaturesFuncs

    using Program = ProgramsFeaturesFuncs::ITEM;
    using Product = ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM;
    using RegValues = std::vector<ProgramsFeaturesFuncs::REGVALUE>;

    static std::vector<Program> GetProgramsFeaturesItemsList(HKEY root, CString keyPath, RegValues values,
                                                             std::vector<Program> items)
    {
        return ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(root, keyPath, values, std::move(items));
    }
    static std::vector<Program> GetProgramsFeaturesWindowsInstallerItemsList(HKEY root, CString keyPath,
                                                                             RegValues values,
                                                                             std::vector<Program> items)
    {
        return ProgramsFeaturesFuncs::GetProgramsFeaturesWindowsInstallerItemsList(root, keyPath, values,
                                                                                   std::move(items));
    }
    static RegValues GetProgramsFeaturesValueList() { return ProgramsFeaturesFuncs::GetProgramsFeaturesValueList(); }
    static std::vector<Product> GetProgramsFeaturesInstallerProductsItemsList(HKEY root, CString keyPath,
                                                                              RegValues values,
                                                                              std::vector<Product> items)
    {
        return ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsItemsList(root, keyPath, values,
                                                                                    std::move(items));
    }
    static RegValues GetProgramsFeaturesInstallerProductsValueList()
    {
        return ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsValueList();
    }

    // FeatureControlFuncs

    static void SetFeatureControlEnabled(INTERNETFEATURELIST feature, int enable)
    {
        FeatureControlFuncs::SetFeatureControlEnabled(feature, enable);
    }
    static void DeleteFeatureControlRegistry(CString featureName)
    {
        FeatureControlFuncs::DeleteFeatureControlRegistry(featureName);
    }
    static void SetInformationBarRegistry(CString featureName, std::uint32_t value)
    {
        FeatureControlFuncs::SetInformationBarRegistry(featureName, value);
    }
    static int IsRegValueMore(HKEY key) { return FeatureControlFuncs::IsRegValueMore(key); }

    // ControlPanelFuncs

    static int ExecuteItems(HWND owner, CString arguments) { return ControlPanelFuncs::ExecuteItems(owner, arguments); }

    // UpdatesFuncs

    static int SetUpdatesAttributes(MSXML2::IXMLDOMDocumentPtr document)
    {
        return UpdatesFuncs::SetUpdatesAttributes(std::move(document));
    }
    static std::vector<UpdatesFuncs::UPDATEITEM> GetMoreInfoElementItems(MSXML2::IXMLDOMNodeListPtr moreInfos)
    {
        return UpdatesFuncs::GetMoreInfoElementItems(std::move(moreInfos));
    }

    // StyleFuncs

    static int SetStylesAttributes(MSXML2::IXMLDOMDocumentPtr document)
    {
        return StyleFuncs::SetStylesAttributes(std::move(document));
    }
    static std::vector<StyleFuncs::DESIGNITEM> GetDesignMoreInfoElementItems(MSXML2::IXMLDOMNodeListPtr moreInfos)
    {
        return StyleFuncs::GetDesignMoreInfoElementItems(std::move(moreInfos));
    }
};

} // namespace VyrLibraryFuncs
