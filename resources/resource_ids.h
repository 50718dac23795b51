// Identifiers of the resources in the language libraries and in Resource.DLL.
// Shared by the .rc sources and the program, so plain #defines.
#pragma once

// Strings of LANG_ENG.DLL and LANG_ESP.DLL.
#define IDS_PRODUCT_NAME 1           // title, Desktop.ini mark section, about text
#define IDS_PRODUCT_TAGLINE 2        // title after " - ", default info tip
#define IDS_ABOUT_WEB_ADDRESS 3      // about text
#define IDS_COPYRIGHT 4              // default info tip, about text
#define IDS_LANGUAGE_CODE 506        // "en" / "es", sent with web requests
#define IDS_CURRENT_ICON_LABEL 1002  // followed by a line break and the folder path
#define IDS_NEW_ICON_LABEL 1003
#define IDS_CHOOSER_TITLE 1004
#define IDS_CHOOSER_FILTER 1005  // "description|pattern|..." list
#define IDS_MISSING_FILE_TITLE 1006
#define IDS_MISSING_FILE_PROMPT 1007
#define IDS_BROWSE_BUTTON 1008
#define IDS_APPLY_BUTTON 1009
#define IDS_CONFIRM_TITLE 1012
#define IDS_APPLY_PROMPT 1013
#define IDS_DEFAULT_INFOTIP_LEAD 1014
#define IDS_EXIT_BUTTON 1015
#define IDS_TIP_NEW_ICON 1016
#define IDS_TIP_CURRENT_ICON 1017
#define IDS_TIP_ICON_LIST 1018
#define IDS_TIP_BROWSE 1019
#define IDS_TIP_RECENT 1020
#define IDS_INFOTIP_LABEL 1021
#define IDS_RECENT_LABEL 1022
#define IDS_TIP_INFOTIP 1023
#define IDS_STATUS_LOADING 1024  // followed by " i/count"
#define IDS_STATUS_FEW_ICONS 1025
#define IDS_STATUS_ICON_COUNT 1026  // preceded by "count "
#define IDS_DEFAULT_ICON_LABEL 1027
#define IDS_REMOVE_PROMPT 1029
#define IDS_BROWSE_KEY 1030          // access keys with Alt: the first letter counts
#define IDS_APPLY_KEY 1031
#define IDS_EXIT_KEY 1032
#define IDS_ICON_LIST_NAME 1033      // followed by " " and the icon file's name
#define IDS_TIP_ABOUT 1107
#define IDS_LOW_DEPTH_NOTICE 1110
#define IDS_LOW_DEPTH_QUESTION 1111
#define IDS_RESTART_NOTICE 1112
#define IDS_RESTART_QUESTION 1113
#define IDS_EMPTY_COMMAND_LINE 1114
#define IDS_TIP_DEFAULT_ICON 1115
#define IDS_ABOUT_UPDATE 1903
#define IDS_ABOUT_WEB_PAGE 1904
#define IDS_HELP 1905  // help link and about-window help button
#define IDS_ABOUT_OK 1906
#define IDS_ABOUT_VERSION 1907
#define IDS_ABOUT_THANKS 1908
#define IDS_ABOUT_SUMMARY 1910
#define IDS_ABOUT_RIGHTS 1911
#define IDS_ABOUT_SETTINGS 1912  // caption of a button that is never shown
#define IDS_SPLASH_INFO 1913
#define IDS_ABOUT_CREDITS 1952
#define IDS_ABOUT_CONTACT 1953

// Resource.DLL.
#define IDB_SKIN 2000
#define IDB_LOGO 2003
// The logo drawn for displays scaled to 125, 150, 175 and 200 %.
#define IDB_LOGO_125 2004
#define IDB_LOGO_150 2005
#define IDB_LOGO_175 2006
#define IDB_LOGO_200 2007
#define IDI_WINDOW 4001
#define IDR_FONT 6000
