// The IDs of every control and command: an outside program that works this one needs nothing else.
#pragma once

// Controls of the main window
#define IDC_Toolbar1 1001
#define IDC_ListView1 1002
#define IDC_Frame1 1003
#define IDC_lblHotkey 1004
#define IDC_chkCtrlAlt0 1005
#define IDC_chkCtrlAlt1 1006
#define IDC_chkCtrlAlt2 1007
#define IDC_Combo1 1008
#define IDC_cmdAllList 1009
#define IDC_Toolbar2 1010
#define IDC_ProgressBar1 1011
#define IDC_lblListView1 1012
#define IDC_lblStatus 1013
#define IDC_cmdShow 1014
#define IDC_cmdUndo 1015
#define IDC_txtFind 1016
#define IDC_lblFind 1017

// The keys list
#define IDC_List1 1021

// Buttons of the dialogs
#define IDC_cmdOK 1031
#define IDC_cmdCancel 1032
#define IDC_cmdApply 1033

// Controls of the export dialog, whose frame is Frame1 too
#define IDC_chkColumn0 1041
#define IDC_chkColumn1 1042
#define IDC_chkColumn2 1043
#define IDC_chkColumn3 1044

// Controls of the options dialog, whose first frame is Frame1 too
#define IDC_tbsOptions 1051
#define IDC_chkShowgridlines 1052
#define IDC_chkFixedBorders 1053
#define IDC_chkFlatUserInterface 1054
#define IDC_Frame7 1055
#define IDC_Label3 1056
#define IDC_lblColorChange0 1057
#define IDC_Label4 1058
#define IDC_lblColorChange1 1059
#define IDC_Frame3 1060
#define IDC_cmdChangeFont 1061
#define IDC_chkAlwaysRestartTC 1062
#define IDC_chkUseContextMenuKey 1063
#define IDC_chkReverseOrderHotkey 1064
#define IDC_Frame4 1065
#define IDC_optUseDefaultLanguage 1066
#define IDC_optUseOtheLanguage 1067
#define IDC_txtLanguageFilePath 1068
#define IDC_cmdBrowseForLangFile 1069
#define IDC_chkKeepUnknownShortcuts 1080
#define IDC_chkForgetKeysAtOpen 1081
#define IDC_chkShowUserCommands 1082

// Commands of the menus and the main toolbar
#define IDM_mnuFileOpen 2001
#define IDM_mnuFileSave 2002
#define IDM_mnuFileSavenRestartTC 2003
#define IDM_mnuFileExportToClipboard 2004
#define IDM_mnuFileExit 2005
#define IDM_mnuViewToolbar 2011
#define IDM_mnuViewSortList 2012
#define IDM_mnuViewOptions 2013
#define IDM_mnuHelpHelpTopics 2021
#define IDM_restarttc 2031

// Commands of the panel toolbar and its two menus
#define IDM_assign 2041
#define IDM_new 2042
#define IDM_delete 2043
#define IDM_delall 2044
#define IDM_undo 2051
#define IDM_redo 2052
#define IDM_show 2053

// Commands of the list's context menu alone
#define IDM_find 2060
#define IDM_copycommand 2061
#define IDM_copyrow 2062
#define IDM_copytable 2063
#define IDM_keyspage 2064

// Entries of the recent files: numbers without a gap, 1 to 16
#define IDM_mnuFileRecentFiles1 2101
#define IDM_mnuFileRecentFiles2 2102
#define IDM_mnuFileRecentFiles3 2103
#define IDM_mnuFileRecentFiles4 2104
#define IDM_mnuFileRecentFiles5 2105
#define IDM_mnuFileRecentFiles6 2106
#define IDM_mnuFileRecentFiles7 2107
#define IDM_mnuFileRecentFiles8 2108
#define IDM_mnuFileRecentFiles9 2109
#define IDM_mnuFileRecentFiles10 2110
#define IDM_mnuFileRecentFiles11 2111
#define IDM_mnuFileRecentFiles12 2112
#define IDM_mnuFileRecentFiles13 2113
#define IDM_mnuFileRecentFiles14 2114
#define IDM_mnuFileRecentFiles15 2115
#define IDM_mnuFileRecentFiles16 2116
#define IDM_mnuRecentClear 2120
