<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Searching for NAS devices on your local network...</source>
        <extracomment>0 local_hb_search</extracomment>
        <translation>Søger efter NAS-enheder på dit lokale netværk...</translation>
    </message>
    <message>
        <source>April</source>
        <extracomment>1 month_apr</extracomment>
        <translation>April</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be uploaded to the NAS.</source>
        <extracomment>2 read_only_tooltip</extracomment>
        <translation>Du har kun læseadgang til denne mappe. Ændringer, der foretages på denne computer, uploades ikke til NAS-enheden.</translation>
    </message>
    <message>
        <source>Choose the folders, sync direction and file filters yourself (recommended for experienced users)&#x200b;.</source>
        <extracomment>3 wizard_setup_advan_mode_desc</extracomment>
        <translation>Vælg selv mapper, synkroniseringsretning og filfiltre (anbefales til erfarne brugere).</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>4 history_from</extracomment>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Do you want to stop the installation of [ProductName]?</source>
        <extracomment>5 msi_cancel_dlg_text</extracomment>
        <translation>Vil du afbryde installationen af [ProductName]?</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <extracomment>6 msi_welcome_dlg_title, 80 msi_readyremove_dlg_title, 99 msi_maintenance_welcome_dlg_title, 242 msi_error_dlg_title, 256 msi_userexit_dlg_title, 276 msi_fatalerror_dlg_title, 277 msi_eula_dlg_title, 345 msi_filesinuse_dlg_title, 356 msi_maintenance_dlg_title, 425 msi_exit_dlg_title, 441 msi_progress_dlg_title, 456 msi_readyrepair_dlg_title, 488 msi_ready_dlg_title, 492 msi_cancel_dlg_title</extracomment>
        <translation>Installation af [ProductName]</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>7 col_file_action, 505 history_action</extracomment>
        <translation>Handling</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <extracomment>8 msi_welcome_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}Velkommen til installationsguiden til [ProductName]</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <extracomment>9 msi_exit_dlg_description, 297 msi_userexit_dlg_description2, 445 msi_exit_dlg_text, 461 msi_fatalerror_dlg_description2</extracomment>
        <translation>Klik på knappen Udfør for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Unable to reach the network. Please check your network connection and try again.</source>
        <extracomment>10 err_network</extracomment>
        <translation>Der er ikke forbindelse til netværket. Kontrollér din netværksforbindelse, og prøv igen.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <extracomment>11 one_way_sync_download, 349 one_way_download</extracomment>
        <translation>Envejsdownload</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>12 btn_help</extracomment>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>Sync is enabled for this folder.</source>
        <extracomment>13 share_enabled</extracomment>
        <translation>Synkronisering er aktiveret for denne mappe.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <extracomment>14 common_forminvalid</extracomment>
        <translation>Nogle felter indeholder ugyldige værdier. Ret dem, før du fortsætter.</translation>
    </message>
    <message>
        <source>Currently syncing</source>
        <extracomment>15 tray_current_syncing</extracomment>
        <translation>Synkroniseres nu</translation>
    </message>
    <message>
        <source>The Bridgeway service is temporarily unavailable. Please try again later.</source>
        <extracomment>16 err_autoconn_sys</extracomment>
        <translation>Bridgeway-tjenesten er midlertidigt utilgængelig. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <extracomment>17 conn_mode_direct</extracomment>
        <translation>Direkte forbindelse</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. Please check the certificate or contact the NAS administrator.</source>
        <extracomment>18 wizard_ssl_verify_fail_sync_folder_warning, 521 err_ssl_verify_fail</extracomment>
        <translation>NAS-enhedens SSL-certifikat kunne ikke bekræftes. Kontrollér certifikatet, eller kontakt NAS-administratoren.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <extracomment>19 msi_button_exit</extracomment>
        <translation>&amp;Afslut</translation>
    </message>
    <message>
        <source>Syncing of &quot;%1&quot; has stopped because of an error. Click here for details.</source>
        <extracomment>20 notify_abnormal</extracomment>
        <translation>Synkroniseringen af ”%1” er stoppet på grund af en fejl. Klik her for at få flere oplysninger.</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please try again.</source>
        <extracomment>21 msg_test_username_fail</extracomment>
        <translation>Brugernavnet eller adgangskoden er forkert. Prøv igen.</translation>
    </message>
    <message>
        <source>This folder cannot be used as a sync folder. Please choose another one.</source>
        <extracomment>22 wizard_invalid_sync_folder_warning</extracomment>
        <translation>Denne mappe kan ikke bruges som synkroniseringsmappe. Vælg en anden.</translation>
    </message>
    <message>
        <source>Larkmoor Drive will keep the following folder in sync with your NAS:</source>
        <extracomment>23 quick_mode_finish_page_desc</extracomment>
        <translation>Larkmoor Drive holder følgende mappe synkroniseret med din NAS-enhed:</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <extracomment>24 manage_proxy_chk_manual</extracomment>
        <translation>Konfigurer proxyen manuelt</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <extracomment>25 err_auth_short, 238 status_desc_auth_short</extracomment>
        <translation>Godkendelse mislykkedes</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <extracomment>26 status_desc_version_short</extracomment>
        <translation>Versionen understøttes ikke</translation>
    </message>
    <message>
        <source>October</source>
        <extracomment>27 month_oct</extracomment>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>Computer name</source>
        <extracomment>28 col_computer_name</extracomment>
        <translation>Computernavn</translation>
    </message>
    <message>
        <source>Saturday</source>
        <extracomment>29 saturday</extracomment>
        <translation>Lørdag</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <extracomment>30 unlink_connection</extracomment>
        <translation>Fjern forbindelsens tilknytning</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <extracomment>31 manage_proxy_server_ip</extracomment>
        <translation>Proxyserverens adresse</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Remove [ProductName]</source>
        <extracomment>32 msi_readyremove_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Klar til at fjerne [ProductName]</translation>
    </message>
    <message>
        <source>This wizard lets you change, repair or remove [ProductName]. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <extracomment>33 msi_maintenance_welcome_dlg_description</extracomment>
        <translation>Med denne guide kan du redigere, reparere eller fjerne [ProductName]. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>34 history_upload</extracomment>
        <translation>Upload</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <extracomment>35 manage_proxy_chk_account</extracomment>
        <translation>Proxyserveren kræver godkendelse</translation>
    </message>
    <message>
        <source>Choose a Setup Mode</source>
        <extracomment>36 wizard_setup_mode_page_title</extracomment>
        <translation>Vælg en konfigurationstype</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>37 desc_inactive, 292 title_inactive</extracomment>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Files will be downloaded to this computer, but local changes will not be uploaded.</source>
        <extracomment>38 wizard_readonly_sync_folder_warning</extracomment>
        <translation>Du har kun læseadgang til denne mappe. Filer downloades til denne computer, men lokale ændringer uploades ikke.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <extracomment>39 manage_setting_applying</extracomment>
        <translation>Anvender indstillinger...</translation>
    </message>
    <message>
        <source>Loading...</source>
        <extracomment>40 loading</extracomment>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>Pause Connection</source>
        <extracomment>41 pause_connection</extracomment>
        <translation>Sæt forbindelse på pause</translation>
    </message>
    <message>
        <source>The text cannot be longer than %1 characters.</source>
        <extracomment>42 common_maxlengthtext</extracomment>
        <translation>Teksten må højst indeholde %1 tegn.</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>43 err_short, 77 title_folder_readonly, 449 err_common</extracomment>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <extracomment>44 time_hour_ago</extracomment>
        <translation>For %1 time(r) siden</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <extracomment>45 common_fieldblank</extracomment>
        <translation>Feltet skal udfyldes.</translation>
    </message>
    <message>
        <source>A system error occurred while accessing this folder. Please try again later.</source>
        <extracomment>46 wizard_system_err_sync_folder_warning</extracomment>
        <translation>Der opstod en systemfejl ved åbning af denne mappe. Prøv igen senere.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Is Complete</source>
        <extracomment>47 msi_exit_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}Installationen af [ProductName] er fuldført</translation>
    </message>
    <message>
        <source>June</source>
        <extracomment>48 month_jun</extracomment>
        <translation>Juni</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>49 tray_resume, 262 session_resume_btn</extracomment>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>50 msg_disabled</extracomment>
        <translation>Deaktiveret</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to [ProductName] Maintenance</source>
        <extracomment>51 msi_maintenance_welcome_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}Velkommen til vedligeholdelse af [ProductName]</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>52 history_customize</extracomment>
        <translation>Brugerdefineret</translation>
    </message>
    <message>
        <source>This computer is already linked to %1. Linking it to the same NAS again may cause file conflicts. Do you want to continue?</source>
        <extracomment>53 wizard_setup_repeat_warning2</extracomment>
        <translation>Denne computer er allerede tilknyttet %1. Hvis du knytter den til den samme NAS-enhed igen, kan det medføre filkonflikter. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>54 btn_shareitem_delete</extracomment>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>55 version</extracomment>
        <translation>Version</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <extracomment>56 btn_choseother</extracomment>
        <translation>Vælg en anden mappe</translation>
    </message>
    <message>
        <source>Please review the settings below, and then click Finish to start syncing.</source>
        <extracomment>57 msg_info_description</extracomment>
        <translation>Gennemse indstillingerne nedenfor, og klik derefter på Udfør for at starte synkroniseringen.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <extracomment>58 conflict_policy_compare_mtime</extracomment>
        <translation>Behold den senest ændrede version</translation>
    </message>
    <message>
        <source>Date created</source>
        <extracomment>59 col_create_time</extracomment>
        <translation>Oprettelsesdato</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <extracomment>60 time_day_ago</extracomment>
        <translation>For %1 dag(e) siden</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <extracomment>61 err_invalid_port_number</extracomment>
        <translation>Portnummeret skal være mellem 1 og 65535.</translation>
    </message>
    <message>
        <source>Sync History</source>
        <extracomment>62 history_page_title</extracomment>
        <translation>Synkroniseringshistorik</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <extracomment>63 btn_edit_connection</extracomment>
        <translation>Rediger forbindelse</translation>
    </message>
    <message>
        <source>Friday</source>
        <extracomment>64 friday</extracomment>
        <translation>Fredag</translation>
    </message>
    <message>
        <source>Destination</source>
        <extracomment>65 col_file_destination</extracomment>
        <translation>Destination</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Please confirm the new certificate to resume syncing.</source>
        <extracomment>66 err_ssl_change, 348 wizard_ssl_change_sync_folder_warning</extracomment>
        <translation>NAS-enhedens SSL-certifikat er ændret. Bekræft det nye certifikat for at genoptage synkroniseringen.</translation>
    </message>
    <message>
        <source>The folders that you have deselected will be permantely removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <extracomment>67 selective_sync_remove_msg</extracomment>
        <translation>De mapper, du har fravalgt, fjernes permanent fra denne computer. Kopierne på NAS-enheden bevares. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <extracomment>68 selective_sync, 71 session_selective_sync_btn</extracomment>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Open Larkmoor Drive</source>
        <extracomment>69 open_main_app, 145 title_open_larkmoor</extracomment>
        <translation>Åbn Larkmoor Drive</translation>
    </message>
    <message>
        <source>File filters</source>
        <extracomment>70 file_selective_sync</extracomment>
        <translation>Filfiltre</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <extracomment>72 msi_button_finish</extracomment>
        <translation>&amp;Udfør</translation>
    </message>
    <message>
        <source>File name</source>
        <extracomment>73 history_file_name, 285 col_file_name</extracomment>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>File names that begin with a period (.)</source>
        <extracomment>74 block_point_prefix</extracomment>
        <translation>Filnavne, der begynder med et punktum (.)</translation>
    </message>
    <message>
        <source>Files with these names will not be synced. Separate the names with semicolons.</source>
        <extracomment>75 block_file_name_tool_tip</extracomment>
        <translation>Filer med disse navne synkroniseres ikke. Adskil navnene med semikolon.</translation>
    </message>
    <message>
        <source>Uploading</source>
        <extracomment>76 label_uploading</extracomment>
        <translation>Uploader</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer. Larkmoor Drive will keep them in sync.</source>
        <extracomment>78 wizard_new_sync_folder_desc</extracomment>
        <translation>Vælg en mappe på NAS-enheden og en mappe på denne computer. Larkmoor Drive holder dem synkroniseret.</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Larkmoor Drive will be installed for your user account only. Do you want to continue?</source>
        <extracomment>79 NSIS_NOT_ADMIN_CONFIRM</extracomment>
        <translation>Du er ikke logget på som administrator. Larkmoor Drive installeres kun for din brugerkonto. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>The sync service is disabled for your account. Please contact the NAS administrator.</source>
        <extracomment>81 err_orlaqdisable</extracomment>
        <translation>Synkroniseringstjenesten er deaktiveret for din konto. Kontakt NAS-administratoren.</translation>
    </message>
    <message>
        <source>This is not the NAS that was originally linked. Please check the address or set up a new connection.</source>
        <extracomment>82 err_hb_not_match</extracomment>
        <translation>Dette er ikke den NAS-enhed, der oprindeligt blev tilknyttet. Kontrollér adressen, eller konfigurer en ny forbindelse.</translation>
    </message>
    <message>
        <source>You do not have permission to share this file. Please contact the NAS administrator.</source>
        <extracomment>83 sharing_restrict</extracomment>
        <translation>Du har ikke tilladelse til at dele denne fil. Kontakt NAS-administratoren.</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>84 manage_option_tab_name</extracomment>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <extracomment>85 manage_setting_not_save</extracomment>
        <translation>Dine ændringer er ikke blevet gemt. Vil du kassere dem?</translation>
    </message>
    <message>
        <source>Username</source>
        <extracomment>86 title_usr, 92 manage_proxy_label_username</extracomment>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>Manage</source>
        <extracomment>87 btn_manage</extracomment>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove [ProductName] from this computer.</source>
        <extracomment>88 msi_readyremove_dlg_description</extracomment>
        <translation>Installationsguiden er klar til at fjerne [ProductName] fra denne computer.</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>89 history_folder</extracomment>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>There are no folders available to sync.</source>
        <extracomment>90 no_valid_folder</extracomment>
        <translation>Der er ingen tilgængelige mapper at synkronisere.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <extracomment>91 manage_share_local_syncfolder</extracomment>
        <translation>Lokal mappe</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <extracomment>93 wizard_setup_advan_mode_title</extracomment>
        <translation>Avanceret konfiguration</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>94 status_desc_pause, 269 tray_status_paused</extracomment>
        <translation>På pause</translation>
    </message>
    <message>
        <source>Welcome to Larkmoor Drive</source>
        <extracomment>95 title_welcome</extracomment>
        <translation>Velkommen til Larkmoor Drive</translation>
    </message>
    <message>
        <source>Folder selection</source>
        <extracomment>96 folder_selective_sync</extracomment>
        <translation>Valg af mapper</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in a few clicks. All your files will be synced to a single folder with the recommended settings.</source>
        <extracomment>97 wizard_setup_quick_mode_desc</extracomment>
        <translation>Knyt denne computer til din NAS-enhed med få klik. Alle dine filer synkroniseres til en enkelt mappe med de anbefalede indstillinger.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <extracomment>98 tray_opendir, 415 open_folder</extracomment>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <extracomment>100 manage_option_synchronization_mode</extracomment>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Add a sync folder to an existing connection</source>
        <extracomment>101 wizard_sync_folder_new_session</extracomment>
        <translation>Føj en synkroniseringsmappe til en eksisterende forbindelse</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <extracomment>102 advan_setup_wizard</extracomment>
        <translation>Guide til avanceret konfiguration</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <extracomment>103 context_menu_filter_folders</extracomment>
        <translation>Synkroniser ikke disse mapper</translation>
    </message>
    <message>
        <source>A new version of Larkmoor Drive is available. Click here to update.</source>
        <extracomment>104 tray_click_to_update</extracomment>
        <translation>Der er en ny version af Larkmoor Drive. Klik her for at opdatere.</translation>
    </message>
    <message>
        <source>A newer version of Larkmoor Drive is already installed. To install this version, please uninstall the current version first.</source>
        <extracomment>105 NSIS_LARKMOOR_INSTALLED_NEWER</extracomment>
        <translation>En nyere version af Larkmoor Drive er allerede installeret. Afinstaller den nuværende version først, hvis du vil installere denne version.</translation>
    </message>
    <message>
        <source>A different NAS has been found at this address. Please link this computer again.</source>
        <extracomment>106 status_desc_hb_changed</extracomment>
        <translation>Der er fundet en anden NAS-enhed på denne adresse. Tilknyt denne computer igen.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <extracomment>107 manage_option_merge_mode</extracomment>
        <translation>Fletningstilstand</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>108 btn_cancel, 241 management_proxy_cancel_btn, 496 msi_button_cancel</extracomment>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>To use selective sync, please update Larkmoor Server on your NAS.</source>
        <extracomment>109 update_pkg_for_selective_sync</extracomment>
        <translation>Opdater Larkmoor Server på din NAS-enhed for at bruge selektiv synkronisering.</translation>
    </message>
    <message>
        <source>Files that match the following names or extensions will not be synced.</source>
        <extracomment>110 black_list_desc</extracomment>
        <translation>Filer med følgende navne eller filtypenavne synkroniseres ikke.</translation>
    </message>
    <message>
        <source>Choose the folders on the NAS that you want to sync to this computer.</source>
        <extracomment>111 advan_mode_set_share_folder_info</extracomment>
        <translation>Vælg de mapper på NAS-enheden, som du vil synkronisere til denne computer.</translation>
    </message>
    <message>
        <source>Everything you put into this folder is synced to your NAS and to all your linked computers.</source>
        <extracomment>112 tutorial_first_desc</extracomment>
        <translation>Alt, hvad du lægger i denne mappe, synkroniseres til din NAS-enhed og til alle dine tilknyttede computere.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <extracomment>113 title_conn_mode</extracomment>
        <translation>Forbindelsestilstand</translation>
    </message>
    <message>
        <source>ID</source>
        <extracomment>114 title_id, 464 col_id</extracomment>
        <translation>Id</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been reached. Please free up some space or contact the NAS administrator.</source>
        <extracomment>115 msg_share_quotafull</extracomment>
        <translation>Kvoten for den delte mappe ”%1” er nået. Frigør plads, eller kontakt NAS-administratoren.</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <extracomment>116 manage_proxy_title</extracomment>
        <translation>Proxyindstillinger</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <extracomment>117 manage_option_sync_mode</extracomment>
        <translation>Synkroniseringstilstand</translation>
    </message>
    <message>
        <source>Summary</source>
        <extracomment>118 msg_info</extracomment>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>Connection Already Exists</source>
        <extracomment>119 wizard_setup_repeat_warning_title</extracomment>
        <translation>Forbindelsen findes allerede</translation>
    </message>
    <message>
        <source>Folder name</source>
        <extracomment>120 folder_name</extracomment>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <extracomment>121 two_way_sync</extracomment>
        <translation>Tovejssynkronisering</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <extracomment>122 msi_maintenance_dlg_change_tooltip</extracomment>
        <translation>Rediger installationen</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS. Please contact the NAS administrator.</source>
        <extracomment>123 err_user_home_disabled</extracomment>
        <translation>Tjenesten til hjemmemapper er deaktiveret på NAS-enheden. Kontakt NAS-administratoren.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Install [ProductName]</source>
        <extracomment>124 msi_ready_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Klar til at installere [ProductName]</translation>
    </message>
    <message>
        <source>March</source>
        <extracomment>125 month_mar</extracomment>
        <translation>Marts</translation>
    </message>
    <message>
        <source>Your files, wherever you are</source>
        <extracomment>126 msg_slogan</extracomment>
        <translation>Dine filer, uanset hvor du er</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License Agreement</source>
        <extracomment>127 msi_eula_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Licensaftale</translation>
    </message>
    <message>
        <source>Get link</source>
        <extracomment>128 context_menu_share_link</extracomment>
        <translation>Hent link</translation>
    </message>
    <message>
        <source>Valid from</source>
        <extracomment>129 sharing_enable_start_at</extracomment>
        <translation>Gyldig fra</translation>
    </message>
    <message>
        <source>February</source>
        <extracomment>130 month_feb</extracomment>
        <translation>Februar</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <extracomment>131 err_version_short</extracomment>
        <translation>Inkompatibel version</translation>
    </message>
    <message>
        <source>The network connection is unstable.</source>
        <extracomment>132 tray_unstable</extracomment>
        <translation>Netværksforbindelsen er ustabil.</translation>
    </message>
    <message>
        <source>Do not sync the following files:</source>
        <extracomment>133 file_black_list_label</extracomment>
        <translation>Synkroniser ikke følgende filer:</translation>
    </message>
    <message>
        <source>Linking...</source>
        <extracomment>134 msg_linking, 308 status_desc_linking</extracomment>
        <translation>Tilknytter...</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed because an error occurred. No changes have been made to your computer. To try again later, please run the installer again.</source>
        <extracomment>135 msi_fatalerror_dlg_description1</extracomment>
        <translation>[ProductName] kunne ikke installeres, fordi der opstod en fejl. Der er ikke foretaget ændringer på computeren. Kør installationsprogrammet igen, hvis du vil prøve på et senere tidspunkt.</translation>
    </message>
    <message>
        <source>Download only</source>
        <extracomment>136 download_only</extracomment>
        <translation>Kun download</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists on this computer. Do you want to merge it with the folder on the NAS?</source>
        <extracomment>137 msg_mergefolder</extracomment>
        <translation>Mappen ”%1” findes allerede på denne computer. Vil du flette den med mappen på NAS-enheden?</translation>
    </message>
    <message>
        <source>Just now</source>
        <extracomment>138 time_just_now</extracomment>
        <translation>For et øjeblik siden</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <extracomment>139 conflict_policy_rename_conflict</extracomment>
        <translation>Behold begge versioner, og omdøb den ældste</translation>
    </message>
    <message>
        <source>Please read the following License Agreement carefully.</source>
        <extracomment>140 msi_eula_dlg_description</extracomment>
        <translation>Læs følgende licensaftale omhyggeligt.</translation>
    </message>
    <message>
        <source>Find a NAS on your local network</source>
        <extracomment>141 wizard_find_local_hb_tooltip</extracomment>
        <translation>Find en NAS-enhed på dit lokale netværk</translation>
    </message>
    <message>
        <source>Recently Changed Files</source>
        <extracomment>142 recently_changed_title</extracomment>
        <translation>Senest ændrede filer</translation>
    </message>
    <message>
        <source>Unable to enable sync for the folder &quot;%1&quot;. Please try again.</source>
        <extracomment>143 err_share_fail_enable</extracomment>
        <translation>Synkronisering kunne ikke aktiveres for mappen ”%1”. Prøv igen.</translation>
    </message>
    <message>
        <source>Finish</source>
        <extracomment>144 finish</extracomment>
        <translation>Udfør</translation>
    </message>
    <message>
        <source>Enter your 6-digit verification code</source>
        <extracomment>146 connection_enter_otp</extracomment>
        <translation>Indtast din bekræftelseskode på 6 cifre</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <extracomment>147 sharing_link</extracomment>
        <translation>Delingslink</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <extracomment>148 next_x_pages</extracomment>
        <translation>Næste %1 sider</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <extracomment>149 msg_test_connect</extracomment>
        <translation>Tester forbindelsen...</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <extracomment>150 msg_language_restart</extracomment>
        <translation>Genstart %1 for at anvende de nye sprogindstillinger.</translation>
    </message>
    <message>
        <source>You can open Larkmoor Drive at any time from its tray icon.</source>
        <extracomment>151 msg_finish_way</extracomment>
        <translation>Du kan til enhver tid åbne Larkmoor Drive via ikonet i meddelelsesområdet.</translation>
    </message>
    <message>
        <source>Rename</source>
        <extracomment>152 history_rename</extracomment>
        <translation>Omdøb</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <extracomment>153 msi_button_next</extracomment>
        <translation>&amp;Næste</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>154 yes</extracomment>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Folder path</source>
        <extracomment>155 title_folderpath</extracomment>
        <translation>Mappesti</translation>
    </message>
    <message>
        <source>An unknown issue has occurred, please restart Larkmoor Drive.</source>
        <extracomment>156 msg_error</extracomment>
        <translation>Der er opstået et ukendt problem. Genstart Larkmoor Drive.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <extracomment>157 read_only</extracomment>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <extracomment>158 manage_option_use_black_white_icon</extracomment>
        <translation>Brug et ensfarvet ikon i meddelelsesområdet</translation>
    </message>
    <message>
        <source>Resume Connection</source>
        <extracomment>159 resume_connection</extracomment>
        <translation>Genoptag forbindelse</translation>
    </message>
    <message>
        <source>May</source>
        <extracomment>160 month_may</extracomment>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Larkmoor Drive is starting...</source>
        <extracomment>161 msg_startup</extracomment>
        <translation>Larkmoor Drive starter...</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>162 msi_readyrepair_dlg_text</extracomment>
        <translation>Klik på Reparer for at reparere installationen af [ProductName]. Klik på Tilbage for at gennemse indstillingerne eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Repair [ProductName]</source>
        <extracomment>163 msi_readyrepair_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Klar til at reparere [ProductName]</translation>
    </message>
    <message>
        <source>Unable to reach the Bridgeway server. Please check your network connection and try again.</source>
        <extracomment>164 err_autoconn_ctrl</extracomment>
        <translation>Der er ikke forbindelse til Bridgeway-serveren. Kontrollér din netværksforbindelse, og prøv igen.</translation>
    </message>
    <message>
        <source>The contents of both folders will be combined. Files that exist in both folders will be handled according to your conflict policy.</source>
        <extracomment>165 info_mergefolder</extracomment>
        <translation>Indholdet af begge mapper flettes. Filer, der findes i begge mapper, håndteres i henhold til din konfliktpolitik.</translation>
    </message>
    <message>
        <source>Unable to resolve a conflict for the file &quot;%1&quot;.</source>
        <extracomment>166 err_conflict</extracomment>
        <translation>En konflikt for filen ”%1” kunne ikke løses.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <extracomment>167 selective_sync_loading</extracomment>
        <translation>Indlæser mappelisten...</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this sync folder? Your files on the NAS and on this computer will be kept.</source>
        <extracomment>168 msg_shareitem_delete</extracomment>
        <translation>Er du sikker på, at du vil fjerne denne synkroniseringsmappe? Dine filer på NAS-enheden og på denne computer bevares.</translation>
    </message>
    <message>
        <source>Verifying your account...</source>
        <extracomment>169 msg_checkpass</extracomment>
        <translation>Bekræfter din konto...</translation>
    </message>
    <message>
        <source>Your version of Larkmoor Drive is too old for this NAS. Please update Larkmoor Drive and try again.</source>
        <extracomment>170 err_version_client</extracomment>
        <translation>Din version af Larkmoor Drive er for gammel til denne NAS-enhed. Opdater Larkmoor Drive, og prøv igen.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty. Its contents will be merged with the folder on the NAS.</source>
        <extracomment>171 msg_folder_not_empty</extracomment>
        <translation>Mappen ”%1” er ikke tom. Indholdet flettes med mappen på NAS-enheden.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link. Please try again later.</source>
        <extracomment>172 err_orlaq_share_link</extracomment>
        <translation>Der kunne ikke oprettes et delingslink. Prøv igen senere.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <extracomment>173 msi_button_remove</extracomment>
        <translation>&amp;Fjern</translation>
    </message>
    <message>
        <source>Expires on</source>
        <extracomment>174 sharing_enable_expire_at</extracomment>
        <translation>Udløber den</translation>
    </message>
    <message>
        <source>Expires after</source>
        <extracomment>175 sharing_exp_after</extracomment>
        <translation>Udløber efter</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <extracomment>176 manage_share_title</extracomment>
        <translation>Synkroniseringsmapper</translation>
    </message>
    <message>
        <source>Click Remove to uninstall [ProductName]. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>177 msi_readyremove_dlg_text</extracomment>
        <translation>Klik på Fjern for at afinstallere [ProductName]. Klik på Tilbage for at gennemse indstillingerne eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>178 col_time, 273 history_time</extracomment>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>File names:</source>
        <extracomment>179 block_file_name_label</extracomment>
        <translation>Filnavne:</translation>
    </message>
    <message>
        <source>The volume that holds the sync folder &quot;%1&quot; is not mounted. Please mount it to resume syncing.</source>
        <extracomment>180 err_syncfolder_not_mounted</extracomment>
        <translation>Den diskenhed, der indeholder synkroniseringsmappen ”%1”, er ikke tilsluttet. Tilslut den for at genoptage synkroniseringen.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <extracomment>181 manage_proxy_chk_sys_proxy</extracomment>
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <extracomment>182 manage_share_enable</extracomment>
        <translation>Aktivér synkronisering</translation>
    </message>
    <message>
        <source>You do not have permission to download this file.</source>
        <extracomment>183 desc_cannot_download</extracomment>
        <translation>Du har ikke tilladelse til at downloade denne fil.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <extracomment>184 notify_new_share_short</extracomment>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <extracomment>185 file_ext_label</extracomment>
        <translation>Filtypenavne:</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;? Your files on the NAS and on this computer will be kept.</source>
        <extracomment>186 session_unlink_confirm_msg</extracomment>
        <translation>Er du sikker på, at du vil stoppe synkroniseringen af ”%1”? Dine filer på NAS-enheden og på denne computer bevares.</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>187 col_file_size</extracomment>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Status:</source>
        <extracomment>188 msi_progress_dlg_status_label</extracomment>
        <translation>Status:</translation>
    </message>
    <message>
        <source>%1 upgrade failed (error code: %2).</source>
        <extracomment>189 wizard_client_upgrade_failed</extracomment>
        <translation>Opgradering af %1 mislykkedes (fejlkode: %2).</translation>
    </message>
    <message>
        <source>Unlink</source>
        <extracomment>190 action_unlink, 338 session_unlink_btn</extracomment>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>SSL Certificate Warning</source>
        <extracomment>191 title_ssl_warning</extracomment>
        <translation>Advarsel om SSL-certifikat</translation>
    </message>
    <message>
        <source>A connection to this NAS already exists on this computer.</source>
        <extracomment>192 wizard_setup_repeat_warning_desc</extracomment>
        <translation>Der findes allerede en forbindelse til denne NAS-enhed på denne computer.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS to upload &quot;%1&quot;.</source>
        <extracomment>193 msg_diskfull</extracomment>
        <translation>Der er ikke nok ledig plads på NAS-enheden til at uploade ”%1”.</translation>
    </message>
    <message>
        <source>Please enter your verification code.</source>
        <extracomment>194 err_otp_required</extracomment>
        <translation>Indtast din bekræftelseskode.</translation>
    </message>
    <message>
        <source>Choose Which Files to Sync</source>
        <extracomment>195 selective_sync_file_title</extracomment>
        <translation>Vælg, hvilke filer der skal synkroniseres</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>196 tray_exit</extracomment>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Please confirm the folders to be synced.</source>
        <extracomment>197 wizard_set_sync_folder_desc</extracomment>
        <translation>Bekræft de mapper, der skal synkroniseres.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <extracomment>198 msg_welcome</extracomment>
        <translation>Velkommen!</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <extracomment>199 msg_seldir</extracomment>
        <translation>Vælg en mappe</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another one.</source>
        <extracomment>200 wizard_access_deny_sync_folder_warning</extracomment>
        <translation>Du har ikke tilladelse til at åbne denne mappe. Vælg en anden.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <extracomment>201 tray_updating</extracomment>
        <translation>Opdaterer...</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <extracomment>202 manage_share_change_folder</extracomment>
        <translation>Skift mappe</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>203 title_value</extracomment>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>Larkmoor is already installed. To install this version, please uninstall the current version first</source>
        <extracomment>204 NSIS_LARKMOOR_INSTALLED_CURRENT</extracomment>
        <translation>Larkmoor er allerede installeret. Afinstaller den nuværende version først, hvis du vil installere denne version</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to install [ProductName] on this computer.</source>
        <extracomment>205 msi_ready_dlg_description</extracomment>
        <translation>Installationsguiden er klar til at installere [ProductName] på denne computer.</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>206 title_name</extracomment>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Add Sync Folder</source>
        <extracomment>207 session_add_btn</extracomment>
        <translation>Tilføj synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <extracomment>208 open_sync_status</extracomment>
        <translation>Vis synkroniseringsstatus</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Failed</source>
        <extracomment>209 msi_fatalerror_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}Installationen af [ProductName] mislykkedes</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <extracomment>210 manage_setting_no_change</extracomment>
        <translation>Ingen indstillinger er blevet ændret.</translation>
    </message>
    <message>
        <source>SSL</source>
        <extracomment>211 title_ssl_enable</extracomment>
        <translation>SSL</translation>
    </message>
    <message>
        <source>You can open Larkmoor Drive at any time to sync more folders or change the sync settings.</source>
        <extracomment>212 quick_mode_finish_page_more_detail</extracomment>
        <translation>Du kan til enhver tid åbne Larkmoor Drive for at synkronisere flere mapper eller ændre synkroniseringsindstillingerne.</translation>
    </message>
    <message>
        <source>Maximum number of downloads</source>
        <extracomment>213 sharing_enable_expire_times</extracomment>
        <translation>Maksimalt antal downloads</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>214 history_download</extracomment>
        <translation>Download</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>215 history_date</extracomment>
        <translation>Dato</translation>
    </message>
    <message>
        <source>This computer is already linked to this NAS.</source>
        <extracomment>216 err_link_same_hb</extracomment>
        <translation>Denne computer er allerede tilknyttet denne NAS-enhed.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <extracomment>217 manage_proxy_chk_no_proxy</extracomment>
        <translation>Brug ikke en proxy</translation>
    </message>
    <message>
        <source>The version of Larkmoor Server on the NAS is too old. Please update it and try again.</source>
        <extracomment>218 err_version_server</extracomment>
        <translation>Versionen af Larkmoor Server på NAS-enheden er for gammel. Opdater den, og prøv igen.</translation>
    </message>
    <message>
        <source>How would you like to set up Larkmoor Drive?</source>
        <extracomment>219 wizard_setup_mode_page_desc</extracomment>
        <translation>Hvordan vil du konfigurere Larkmoor Drive?</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>220 history_keyword</extracomment>
        <translation>Nøgleord</translation>
    </message>
    <message>
        <source>Download History</source>
        <extracomment>221 main_download_history</extracomment>
        <translation>Downloadhistorik</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <extracomment>222 manage_option_enable_icon_overlay</extracomment>
        <translation>Vis ikoner for synkroniseringsstatus på filer og mapper</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>223 msi_ready_dlg_text</extracomment>
        <translation>Klik på Installer for at starte installationen. Klik på Tilbage for at gennemse indstillingerne eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>The download has been canceled.</source>
        <extracomment>224 msg_download_aborted</extracomment>
        <translation>Downloaden er blevet annulleret.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <extracomment>225 title_folder_nonempty</extracomment>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Choose which features of [ProductName] are installed on this computer.</source>
        <extracomment>226 msi_maintenance_dlg_change_text</extracomment>
        <translation>Vælg, hvilke funktioner i [ProductName] der skal installeres på denne computer.</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS has been reached. Please free up some space or contact the NAS administrator.</source>
        <extracomment>227 wizard_quotafull_sync_folder_warning, 271 status_desc_quotafull</extracomment>
        <translation>Din lagerkvote på NAS-enheden er nået. Frigør plads, eller kontakt NAS-administratoren.</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>228 btn_ok, 516 msi_button_ok</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open My Folder</source>
        <extracomment>229 quick_mode_open_folder_btn</extracomment>
        <translation>Åbn min mappe</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <extracomment>230 dont_show_msg</extracomment>
        <translation>Vis ikke denne meddelelse igen</translation>
    </message>
    <message>
        <source>Sync will be disabled for this folder, and its files will be permantely removed from this computer. The copies on the NAS will be kept.</source>
        <extracomment>231 share_enable_remove_msg</extracomment>
        <translation>Synkronisering deaktiveres for denne mappe, og filerne i den fjernes permanent fra denne computer. Kopierne på NAS-enheden bevares.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <extracomment>232 msi_button_ignore</extracomment>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard configures [ProductName].  This may take several minutes.</source>
        <extracomment>233 msi_progress_dlg_text, 344 msi_progress_dlg_description</extracomment>
        <translation>Vent, mens installationsguiden konfigurerer [ProductName]. Det kan tage flere minutter.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them afterwards</source>
        <extracomment>234 msi_filesinuse_dlg_closeall</extracomment>
        <translation>&amp;Luk programmerne, og genstart dem bagefter</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>235 history_search</extracomment>
        <translation>Søg</translation>
    </message>
    <message>
        <source>Your version of Larkmoor Drive is not up-to-date. Please update it to resume syncing.</source>
        <extracomment>236 status_desc_errversion_client</extracomment>
        <translation>Din version af Larkmoor Drive er ikke opdateret. Opdater den for at genoptage synkroniseringen.</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Please check your network connection and try again.</source>
        <extracomment>237 wizard_network_err_sync_folder_warning</extracomment>
        <translation>Forbindelsen til NAS-enheden blev afbrudt. Kontrollér din netværksforbindelse, og prøv igen.</translation>
    </message>
    <message>
        <source>The setup of [ProductName] was interrupted. No changes have been made to your computer. To install the program at another time, please run the installer again.</source>
        <extracomment>239 msi_userexit_dlg_description1</extracomment>
        <translation>Installationen af [ProductName] blev afbrudt. Der er ikke foretaget ændringer på computeren. Kør installationsprogrammet igen, hvis du vil installere programmet på et andet tidspunkt.</translation>
    </message>
    <message>
        <source>You Larkmoor Server package version is not up-to-date. Please update it to resume syncing.</source>
        <extracomment>240 status_desc_errversion_server</extracomment>
        <translation>Din version af pakken Larkmoor Server er ikke opdateret. Opdater den for at genoptage synkroniseringen.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>243 status_desc_perm_short, 510 err_share_perm_short</extracomment>
        <translation>Adgang nægtet</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Was Interrupted</source>
        <extracomment>244 msi_userexit_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}Installationen af [ProductName] blev afbrudt</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <extracomment>245 msi_readyrepair_dlg_description</extracomment>
        <translation>Installationsguiden er klar til at reparere [ProductName].</translation>
    </message>
    <message>
        <source>Preparing</source>
        <extracomment>246 progress_preparing</extracomment>
        <translation>Forbereder</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <extracomment>247 history_items</extracomment>
        <translation>%1 element(er)</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <extracomment>248 msi_exit_dlg_launch</extracomment>
        <translation>&amp;Start [ProductName] nu</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <extracomment>249 general_setting_show_tutorial</extracomment>
        <translation>Vis introduktionen</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <extracomment>250 try_syncing</extracomment>
        <translation>Forsøger at synkronisere...</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <extracomment>251 msi_button_repair</extracomment>
        <translation>&amp;Reparer</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <extracomment>252 err_full_short</extracomment>
        <translation>Ikke nok plads</translation>
    </message>
    <message>
        <source>Almost done</source>
        <extracomment>253 quick_mode_finish_page_title</extracomment>
        <translation>Næsten færdig</translation>
    </message>
    <message>
        <source>Failed to update Larkmoor database. Please restart or reinstall Larkmoor Drive to resume syncing.</source>
        <extracomment>254 upgrade_failed</extracomment>
        <translation>Larkmoors database kunne ikke opdateres. Genstart eller geninstaller Larkmoor Drive for at genoptage synkroniseringen.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <extracomment>255 msi_button_print</extracomment>
        <translation>Ud&amp;skriv</translation>
    </message>
    <message>
        <source>%1 file(s) updated</source>
        <extracomment>257 files_update</extracomment>
        <translation>%1 fil(er) opdateret</translation>
    </message>
    <message>
        <source>Edit Excluded Files</source>
        <extracomment>258 black_list_btn</extracomment>
        <translation>Rediger udelukkede filer</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <extracomment>259 wednesday</extracomment>
        <translation>Onsdag</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Please free up some space to resume syncing.</source>
        <extracomment>260 status_desc_localdisk_full, 427 msg_localdiskfull</extracomment>
        <translation>Der er ikke nok ledig plads på denne computer. Frigør plads for at genoptage synkroniseringen.</translation>
    </message>
    <message>
        <source>Sync</source>
        <extracomment>261 manage_sync_tab_name</extracomment>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>263 session_pause_btn, 364 tray_pause</extracomment>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>The icons on your files and folders show whether they are up to date, syncing or not synced.</source>
        <extracomment>264 tutorial_second_desc</extracomment>
        <translation>Ikonerne på dine filer og mapper viser, om de er opdateret, er ved at blive synkroniseret eller ikke er synkroniseret.</translation>
    </message>
    <message>
        <source>Easy connection</source>
        <extracomment>265 conn_mode_ez</extracomment>
        <translation>Nem forbindelse</translation>
    </message>
    <message>
        <source>Link again</source>
        <extracomment>266 tray_relink</extracomment>
        <translation>Tilknyt igen</translation>
    </message>
    <message>
        <source>Set Up Larkmoor Drive</source>
        <extracomment>267 wizard_welcome_title</extracomment>
        <translation>Konfigurer Larkmoor Drive</translation>
    </message>
    <message>
        <source>First page</source>
        <extracomment>268 first_page</extracomment>
        <translation>Første side</translation>
    </message>
    <message>
        <source>Trust and Continue</source>
        <extracomment>270 btn_ssl_continue</extracomment>
        <translation>Godkend og fortsæt</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that you want to sync.</source>
        <extracomment>272 msg_seldir_description</extracomment>
        <translation>Vælg den mappe på denne computer, som du vil synkronisere.</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <extracomment>274 context_menu_resume_folder</extracomment>
        <translation>Synkroniser denne mappe</translation>
    </message>
    <message>
        <source>You can also right-click a file to browse its previous versions.</source>
        <extracomment>275 tutorial_third_desc_2</extracomment>
        <translation>Du kan også højreklikke på en fil for at gennemse dens tidligere versioner.</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder. Please choose another one.</source>
        <extracomment>278 msg_folder_mount_point</extracomment>
        <translation>Et tilslutningspunkt kan ikke bruges som synkroniseringsmappe. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <extracomment>279 msg_share_bubble_suffix</extracomment>
        <translation>er blevet delt med dig.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>280 msg_enabled</extracomment>
        <translation>Aktiveret</translation>
    </message>
    <message>
        <source>Sync these folders</source>
        <extracomment>281 context_menu_resume_folders</extracomment>
        <translation>Synkroniser disse mapper</translation>
    </message>
    <message>
        <source>Got It</source>
        <extracomment>282 got_it</extracomment>
        <translation>Forstået</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <extracomment>283 msi_maintenance_dlg_remove_tooltip</extracomment>
        <translation>Fjern installationen</translation>
    </message>
    <message>
        <source>Right-click a file and choose Get link to share it with others.</source>
        <extracomment>284 tutorial_third_desc</extracomment>
        <translation>Højreklik på en fil, og vælg Hent link for at dele den med andre.</translation>
    </message>
    <message>
        <source>Continue</source>
        <extracomment>286 btn_continue</extracomment>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <extracomment>287 err_otp_invalid</extracomment>
        <translation>Bekræftelseskoden er forkert. Prøv igen.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, Repair or Remove [ProductName]</source>
        <extracomment>288 msi_maintenance_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Rediger, reparer eller fjern [ProductName]</translation>
    </message>
    <message>
        <source>This computer is now linked to %1.</source>
        <extracomment>289 wizard_finish_pairing_desc</extracomment>
        <translation>Denne computer er nu tilknyttet %1.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are being synced.</source>
        <extracomment>290 quick_mode_end_msg</extracomment>
        <translation>Konfigurationen er fuldført. Dine filer synkroniseres.</translation>
    </message>
    <message>
        <source>Show Larkmoor Drive in the context menu</source>
        <extracomment>291 manage_option_enable_context_menu</extracomment>
        <translation>Vis Larkmoor Drive i genvejsmenuen</translation>
    </message>
    <message>
        <source>File deleted:</source>
        <extracomment>293 del</extracomment>
        <translation>Fil slettet:</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Please check the address and port and try again.</source>
        <extracomment>294 err_proto</extracomment>
        <translation>NAS-enheden sendte et uventet svar. Kontrollér adressen og porten, og prøv igen.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <extracomment>295 btn_start_now</extracomment>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>A secure connection to %1 could not be established.</source>
        <extracomment>296 msg_ssl_error</extracomment>
        <translation>Der kunne ikke oprettes en sikker forbindelse til %1.</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>298 msi_maintenance_dlg_repair_label</extracomment>
        <translation>Reparer</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>299 label_downloading</extracomment>
        <translation>Downloader</translation>
    </message>
    <message>
        <source>The NAS is indexing this folder. Please try again later.</source>
        <extracomment>300 tooltip_folder_indexing</extracomment>
        <translation>NAS-enheden er ved at indeksere denne mappe. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>301 manage_proxy_label_password, 409 title_pwd</extracomment>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed. Do you want to trust the new certificate?</source>
        <extracomment>302 msg_ssl_change</extracomment>
        <translation>SSL-certifikatet for %1 er ændret. Vil du stole på det nye certifikat?</translation>
    </message>
    <message>
        <source>Do not sync files larger than %1 MB</source>
        <extracomment>303 file_max_size_limit</extracomment>
        <translation>Synkroniser ikke filer, der er større end %1 MB</translation>
    </message>
    <message>
        <source>All events</source>
        <extracomment>304 history_all_event</extracomment>
        <translation>Alle hændelser</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <extracomment>305 tray_syncing_file_cnt</extracomment>
        <translation>Behandler %1 fil(er)...</translation>
    </message>
    <message>
        <source>Your account requires 2-step verification. Please set it up on the NAS first.</source>
        <extracomment>306 err_otp_enforced</extracomment>
        <translation>Din konto kræver totrinsbekræftelse. Konfigurer den først på NAS-enheden.</translation>
    </message>
    <message>
        <source>Choose Which Folders to Sync</source>
        <extracomment>307 selective_sync_folder_title</extracomment>
        <translation>Vælg, hvilke mapper der skal synkroniseres</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; is complete.</source>
        <extracomment>309 msg_download_done</extracomment>
        <translation>Download af ”%1” er fuldført.</translation>
    </message>
    <message>
        <source>This computer is already linked to %1. Each connection to the same NAS needs a seperate sync folder.</source>
        <extracomment>310 wizard_setup_repeat_warning</extracomment>
        <translation>Denne computer er allerede tilknyttet %1. Hver forbindelse til den samme NAS-enhed kræver en separat synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>Remove [ProductName] from this computer.</source>
        <extracomment>311 msi_maintenance_dlg_remove_text</extracomment>
        <translation>Fjern [ProductName] fra denne computer.</translation>
    </message>
    <message>
        <source>Changes to files on a network drive cannot be detected immediately. Syncing may be delayed.</source>
        <extracomment>312 msg_network_drive_watch</extracomment>
        <translation>Ændringer af filer på et netværksdrev kan ikke registreres med det samme. Synkroniseringen kan blive forsinket.</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>313 manage_option_language</extracomment>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>File added: </source>
        <extracomment>314 add</extracomment>
        <translation>Fil tilføjet: </translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <extracomment>315 file_max_size_label</extracomment>
        <translation>Maksimal filstørrelse:</translation>
    </message>
    <message>
        <source>No data </source>
        <extracomment>316 history_no_data</extracomment>
        <translation>Ingen data </translation>
    </message>
    <message>
        <source>Shared folder</source>
        <extracomment>317 manage_share_name</extracomment>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <extracomment>318 title_changefolder</extracomment>
        <translation>Skift synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Monday</source>
        <extracomment>319 monday</extracomment>
        <translation>Mandag</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <extracomment>320 main_sync_task</extracomment>
        <translation>Synkroniseringsopgaver</translation>
    </message>
    <message>
        <source>Encrypt the data transfer with SSL</source>
        <extracomment>321 manage_option_enable_ssl</extracomment>
        <translation>Kryptér dataoverførslen med SSL</translation>
    </message>
    <message>
        <source>Unable to download &quot;%1&quot;.</source>
        <extracomment>322 msg_download_fail</extracomment>
        <translation>”%1” kunne ikke downloades.</translation>
    </message>
    <message>
        <source>Auto Upgrade</source>
        <extracomment>323 title_upgrade</extracomment>
        <translation>Automatisk opgradering</translation>
    </message>
    <message>
        <source>Add a Sync Folder</source>
        <extracomment>324 wizard_new_sync_folder_title</extracomment>
        <translation>Tilføj en synkroniseringsmappe</translation>
    </message>
    <message>
        <source>January</source>
        <extracomment>325 month_jan</extracomment>
        <translation>Januar</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <extracomment>326 err_inval</extracomment>
        <translation>Der er angivet en ugyldig værdi. Kontrollér det indtastede, og prøv igen.</translation>
    </message>
    <message>
        <source>Please wait while Larkmoor Drive connects to your NAS...</source>
        <extracomment>327 wizard_welcome_mask_desc</extracomment>
        <translation>Vent, mens Larkmoor Drive opretter forbindelse til din NAS-enhed...</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <extracomment>328 error_zero_version</extracomment>
        <translation>Denne fil har ingen tidligere versioner.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Please choose a folder that you can write to.</source>
        <extracomment>329 msg_folder_readonly</extracomment>
        <translation>Mappen ”%1” er skrivebeskyttet. Vælg en mappe, som du kan skrive til.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated. You can let the Setup Wizard close them, or restart your computer later.</source>
        <extracomment>330 msi_filesinuse_dlg_text2</extracomment>
        <translation>Følgende programmer bruger filer, der skal opdateres. Du kan lade installationsguiden lukke dem, eller du kan genstarte computeren senere.</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>331 language_default</extracomment>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the NAS.</source>
        <extracomment>332 err_share_not_mounted</extracomment>
        <translation>Den delte mappe ”%1” er ikke tilsluttet på NAS-enheden.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <extracomment>333 msi_welcome_dlg_description</extracomment>
        <translation>Denne guide installerer [ProductName] på computeren. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Disconnected from the NAS. Trying to reconnect...</source>
        <extracomment>334 err_disconn</extracomment>
        <translation>Forbindelsen til NAS-enheden er afbrudt. Forsøger at genoprette forbindelsen...</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>335 management_proxy_apply_btn</extracomment>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <extracomment>336 tray_setinfo</extracomment>
        <translation>Forbindelsesindstillinger</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <extracomment>337 history_last_week</extracomment>
        <translation>Seneste 7 dage</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <extracomment>339 context_menu_version_browse</extracomment>
        <translation>Gennemse tidligere versioner</translation>
    </message>
    <message>
        <source>Set Up Sync Folders</source>
        <extracomment>340 wizard_set_sync_folder</extracomment>
        <translation>Konfigurer synkroniseringsmapper</translation>
    </message>
    <message>
        <source>You do not have permission to create sharing links.</source>
        <extracomment>341 desc_cannot_share_link</extracomment>
        <translation>Du har ikke tilladelse til at oprette delingslinks.</translation>
    </message>
    <message>
        <source>Learn More</source>
        <extracomment>342 more_tutorial</extracomment>
        <translation>Få mere at vide</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated. Please close them and click Retry to continue, or click Exit to end the installation.</source>
        <extracomment>343 msi_filesinuse_dlg_text</extracomment>
        <translation>Følgende programmer bruger filer, der skal opdateres. Luk dem, og klik på Prøv igen for at fortsætte, eller klik på Afslut for at afbryde installationen.</translation>
    </message>
    <message>
        <source>November</source>
        <extracomment>346 month_nov</extracomment>
        <translation>November</translation>
    </message>
    <message>
        <source>Reading the connection mode...</source>
        <extracomment>347 conn_mode_reading</extracomment>
        <translation>Læser forbindelsestilstanden...</translation>
    </message>
    <message>
        <source>Thursday</source>
        <extracomment>350 thursday</extracomment>
        <translation>Torsdag</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <extracomment>351 open_contain_folder</extracomment>
        <translation>Åbn mappen med filen</translation>
    </message>
    <message>
        <source>Larkmoor Drive is running.</source>
        <extracomment>352 msg_running</extracomment>
        <translation>Larkmoor Drive kører.</translation>
    </message>
    <message>
        <source>Stay in Control</source>
        <extracomment>353 tutorial_fourth_title</extracomment>
        <translation>Bevar kontrollen</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <extracomment>354 context_menu_filter_folder</extracomment>
        <translation>Synkroniser ikke denne mappe</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <extracomment>355 sharing_apply_and_copy_button</extracomment>
        <translation>Anvend og kopiér link</translation>
    </message>
    <message>
        <source>August</source>
        <extracomment>357 month_aug</extracomment>
        <translation>August</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <extracomment>358 msg_catchevent</extracomment>
        <translation>Overvåger filændringer...</translation>
    </message>
    <message>
        <source>Merge</source>
        <extracomment>359 btn_merge</extracomment>
        <translation>Flet</translation>
    </message>
    <message>
        <source>File type</source>
        <extracomment>360 history_file_type</extracomment>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Re&amp;try</source>
        <extracomment>361 msi_button_retry</extracomment>
        <translation>&amp;Prøv igen</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>362 title_ip</extracomment>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>A sync folder with this name already exists. Please choose another name.</source>
        <extracomment>363 wizard_share_name_duplicate_warning</extracomment>
        <translation>Der findes allerede en synkroniseringsmappe med dette navn. Vælg et andet navn.</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>365 btn_back</extracomment>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>366 tray_management_page, 374 msg_summary, 482 network_management_page_btn</extracomment>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already part of another sync folder.</source>
        <extracomment>367 err_share_folder_conflict</extracomment>
        <translation>Mappen ”%1” er allerede en del af en anden synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <extracomment>368 sunday</extracomment>
        <translation>Søndag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <extracomment>369 tuesday</extracomment>
        <translation>Tirsdag</translation>
    </message>
    <message>
        <source>Put Your Files Here</source>
        <extracomment>370 tutorial_first_title</extracomment>
        <translation>Læg dine filer her</translation>
    </message>
    <message>
        <source>Larkmoor Drive is initializing...</source>
        <extracomment>371 desc_lkmr_env_preparing</extracomment>
        <translation>Larkmoor Drive initialiserer...</translation>
    </message>
    <message>
        <source>The connection is not secure because the SSL certificate of the NAS could not be verified.</source>
        <extracomment>372 status_desc_ssl_verify_fail</extracomment>
        <translation>Forbindelsen er ikke sikker, fordi NAS-enhedens SSL-certifikat ikke kunne bekræftes.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Please contact the NAS administrator.</source>
        <extracomment>373 wizard_user_disable_sync_folder_warning</extracomment>
        <translation>Din konto er blevet deaktiveret. Kontakt NAS-administratoren.</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <extracomment>375 manage_share_loading</extracomment>
        <translation>Indlæser delte mapper...</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <extracomment>376 manage_option_enable_desktop_notify</extracomment>
        <translation>Vis skrivebordsmeddelelser</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>377 history_type</extracomment>
        <translation>Type</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud service. Syncing it twice may cause file conflicts.</source>
        <extracomment>378 conflict_dropbox</extracomment>
        <translation>Denne mappe synkroniseres allerede af en anden skytjeneste. Hvis den synkroniseres to gange, kan det medføre filkonflikter.</translation>
    </message>
    <message>
        <source>Port</source>
        <extracomment>379 manage_proxy_server_port</extracomment>
        <translation>Port</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>380 tray_about</extracomment>
        <translation>Om</translation>
    </message>
    <message>
        <source>Unable to sign in. Please check your username and password.</source>
        <extracomment>381 err_auth</extracomment>
        <translation>Du kunne ikke logges på. Kontrollér dit brugernavn og din adgangskode.</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>382 history_to</extracomment>
        <translation>Til</translation>
    </message>
    <message>
        <source>Choose a Sync Mode</source>
        <extracomment>383 selective_sync_mode_title</extracomment>
        <translation>Vælg en synkroniseringstilstand</translation>
    </message>
    <message>
        <source>Custom validity period</source>
        <extracomment>384 sharing_customize_duration</extracomment>
        <translation>Brugerdefineret gyldighedsperiode</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <extracomment>385 msg_download_downloading</extracomment>
        <translation>Downloader ”%1”...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <extracomment>386 status_desc_syncing</extracomment>
        <translation>Synkroniserer: %1</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>387 today</extracomment>
        <translation>I dag</translation>
    </message>
    <message>
        <source>See the Status at a Glance</source>
        <extracomment>388 tutorial_second_title</extracomment>
        <translation>Se status med et enkelt blik</translation>
    </message>
    <message>
        <source>Proxy</source>
        <extracomment>389 manage_proxy_tab_name</extracomment>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>390 manage_option_title</extracomment>
        <translation>Valgmuligheder</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved, renamed or deleted.</source>
        <extracomment>391 err_local_sync_folder_miss</extracomment>
        <translation>Den lokale synkroniseringsmappe ”%1” blev ikke fundet. Den kan være blevet flyttet, omdøbt eller slettet.</translation>
    </message>
    <message>
        <source>Unable to remove the sync folder &quot;%1&quot;.</source>
        <extracomment>392 err_shareitem_delete</extracomment>
        <translation>Synkroniseringsmappen ”%1” kunne ikke fjernes.</translation>
    </message>
    <message>
        <source>Initializing</source>
        <extracomment>393 label_preparing</extracomment>
        <translation>Initialiserer</translation>
    </message>
    <message>
        <source>Link a New NAS</source>
        <extracomment>394 link_new_nas</extracomment>
        <translation>Tilknyt en ny NAS-enhed</translation>
    </message>
    <message>
        <source>{\\DlgFont8}I do not accept the terms of the License Agreement</source>
        <extracomment>395 msi_eula_dlg_reject</extracomment>
        <translation>{\\DlgFont8}Jeg accepterer ikke vilkårene i licensaftalen</translation>
    </message>
    <message>
        <source>Your IP address has been blocked by the NAS. Please contact the NAS administrator.</source>
        <extracomment>396 err_ip_not_allowed</extracomment>
        <translation>Din IP-adresse er blevet blokeret af NAS-enheden. Kontakt NAS-administratoren.</translation>
    </message>
    <message>
        <source>Last page</source>
        <extracomment>397 last_page</extracomment>
        <translation>Sidste side</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>398 col_file_status, 498 manage_share_status</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected.</source>
        <extracomment>399 msi_maintenance_dlg_change_text_disabled</extracomment>
        <translation>[ProductName] har ingen funktioner, der kan vælges.</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <extracomment>400 msi_button_yes</extracomment>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Standby</source>
        <extracomment>401 title_standby</extracomment>
        <translation>Standby</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>402 btn_done</extracomment>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Create a Larkmoor Drive folder</source>
        <extracomment>403 wizard_create_larkmoor_folder</extracomment>
        <translation>Opret en mappe til Larkmoor Drive</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is now available. Click here to sync it.</source>
        <extracomment>404 notify_new_share</extracomment>
        <translation>Den delte mappe ”%1” er nu tilgængelig. Klik her for at synkronisere den.</translation>
    </message>
    <message>
        <source>Click the tray icon to pause syncing, view the sync history or change your settings.</source>
        <extracomment>405 tutorial_fourth_desc</extracomment>
        <translation>Klik på ikonet i meddelelsesområdet for at sætte synkroniseringen på pause, få vist synkroniseringshistorikken eller ændre dine indstillinger.</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <extracomment>406 msg_connectsucc</extracomment>
        <translation>Forbindelsen er oprettet.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <extracomment>407 msi_filesinuse_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Filer i brug</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <extracomment>408 desc_cannot_list_version</extracomment>
        <translation>Denne fils versioner kan ikke vises.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <extracomment>410 tray_data_checking</extracomment>
        <translation>Kontrollerer data...</translation>
    </message>
    <message>
        <source>A green check mark means that a file has been synced.</source>
        <extracomment>411 tutorial_second_desc_2</extracomment>
        <translation>Et grønt flueben betyder, at en fil er blevet synkroniseret.</translation>
    </message>
    <message>
        <source>Sync has stopped</source>
        <extracomment>412 notify_abnormal_short</extracomment>
        <translation>Synkroniseringen er stoppet</translation>
    </message>
    <message>
        <source>Status information</source>
        <extracomment>413 title_status_info</extracomment>
        <translation>Statusoplysninger</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Please free up some space or contact the NAS administrator.</source>
        <extracomment>414 wizard_diskfull_sync_folder_warning, 426 status_desc_diskfull</extracomment>
        <translation>Der er ikke nok ledig plads på NAS-enheden. Frigør plads, eller kontakt NAS-administratoren.</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <extracomment>416 msi_button_back</extracomment>
        <translation>&amp;Tilbage</translation>
    </message>
    <message>
        <source>Up to date</source>
        <extracomment>417 status_desc_uptodate, 457 tray_uptodate</extracomment>
        <translation>Opdateret</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <extracomment>418 msg_finish</extracomment>
        <translation>Konfigurationen er fuldført</translation>
    </message>
    <message>
        <source>Larkmoor Drive keeps the files on this computer in sync with your NAS. Please enter your connection information to get started.</source>
        <extracomment>419 wizard_welcome_desc</extracomment>
        <translation>Larkmoor Drive holder filerne på denne computer synkroniseret med din NAS-enhed. Angiv dine forbindelsesoplysninger for at komme i gang.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <extracomment>420 msi_maintenance_dlg_repair_tooltip</extracomment>
        <translation>Reparer installationen</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <extracomment>421 msi_filesinuse_dlg_description</extracomment>
        <translation>Nogle filer, der skal opdateres, er i brug.</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <extracomment>422 wizard_client_upgrade, 428 tray_upgrade</extracomment>
        <translation>Opgrader</translation>
    </message>
    <message>
        <source>Repair missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <extracomment>423 msi_maintenance_dlg_repair_text</extracomment>
        <translation>Reparer manglende eller beskadigede filer, genveje og poster i registreringsdatabasen for [ProductName].</translation>
    </message>
    <message>
        <source>Show status icons on files and folders that are not synced</source>
        <extracomment>424 manage_option_show_filtered_icons</extracomment>
        <translation>Vis statusikoner på filer og mapper, der ikke synkroniseres</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <extracomment>429 msg_unlinking</extracomment>
        <translation>Fjerner tilknytning...</translation>
    </message>
    <message>
        <source>Choose what you want to do with the installation.</source>
        <extracomment>430 msi_maintenance_dlg_description</extracomment>
        <translation>Vælg, hvad du vil gøre med installationen.</translation>
    </message>
    <message>
        <source>December</source>
        <extracomment>431 month_dec</extracomment>
        <translation>December</translation>
    </message>
    <message>
        <source>This Bridgeway ID does not exist. Please check the ID and try again.</source>
        <extracomment>432 err_autoconn_invalidid</extracomment>
        <translation>Dette Bridgeway-id findes ikke. Kontrollér id’et, og prøv igen.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match your permissions. Please change it in the settings.</source>
        <extracomment>433 sync_direction_mismatch</extracomment>
        <translation>Synkroniseringsretningen for denne mappe svarer ikke til dine tilladelser. Ret den i indstillingerne.</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <extracomment>434 main_settings</extracomment>
        <translation>Globale indstillinger</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <extracomment>435 tray_updatedfile</extracomment>
        <translation>Senest opdaterede filer</translation>
    </message>
    <message>
        <source>The NAS has been replaced.</source>
        <extracomment>436 tray_hb_change</extracomment>
        <translation>NAS-enheden er blevet udskiftet.</translation>
    </message>
    <message>
        <source>Add a sync folder on another NAS</source>
        <extracomment>437 wizard_sync_folder_new_nas</extracomment>
        <translation>Tilføj en synkroniseringsmappe på en anden NAS-enhed</translation>
    </message>
    <message>
        <source>Larkmoor Drive</source>
        <extracomment>438 app_name</extracomment>
        <translation>Larkmoor Drive</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <extracomment>439 err_init_failed</extracomment>
        <translation>Initialiseringen mislykkedes.</translation>
    </message>
    <message>
        <source>The volume on the NAS is not mounted. Please contact the NAS administrator.</source>
        <extracomment>440 err_remote_not_mounted</extracomment>
        <translation>Diskenheden på NAS-enheden er ikke tilsluttet. Kontakt NAS-administratoren.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <extracomment>442 err_proxy_ipport_empty</extracomment>
        <translation>Angiv proxyserverens adresse og port.</translation>
    </message>
    <message>
        <source>September</source>
        <extracomment>443 month_sep</extracomment>
        <translation>September</translation>
    </message>
    <message>
        <source>No options available</source>
        <extracomment>444 context_menu_no_option_available</extracomment>
        <translation>Ingen tilgængelige valgmuligheder</translation>
    </message>
    <message>
        <source>Almost Done!</source>
        <extracomment>446 wizard_set_sync_folder_title</extracomment>
        <translation>Næsten færdig!</translation>
    </message>
    <message>
        <source>Copy to %1</source>
        <extracomment>447 context_menu_sendto_prefix</extracomment>
        <translation>Kopiér til %1</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <extracomment>448 hb_overview</extracomment>
        <translation>NAS-oversigt</translation>
    </message>
    <message>
        <source>No NAS yet? Visit our website to learn more.</source>
        <extracomment>450 wizard_welcome_footer_info</extracomment>
        <translation>Har du ikke en NAS-enhed endnu? Besøg vores websted for at få mere at vide.</translation>
    </message>
    <message>
        <source>July</source>
        <extracomment>451 month_jul</extracomment>
        <translation>Juli</translation>
    </message>
    <message>
        <source>Unable to create the folder &quot;%1&quot; on this computer.</source>
        <extracomment>452 wizard_create_local_folder_failed</extracomment>
        <translation>Mappen ”%1” kunne ikke oprettes på denne computer.</translation>
    </message>
    <message>
        <source>Service disabled</source>
        <extracomment>453 err_orlaqdisable_short</extracomment>
        <translation>Tjenesten er deaktiveret</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <extracomment>454 advanced_settings</extracomment>
        <translation>Avancerede indstillinger</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <extracomment>455 msi_button_install</extracomment>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>File edited:</source>
        <extracomment>458 edit</extracomment>
        <translation>Fil redigeret:</translation>
    </message>
    <message>
        <source>Start Larkmoor Drive when you sign in to your computer</source>
        <extracomment>459 manage_option_enable_startup</extracomment>
        <translation>Start Larkmoor Drive, når du logger på computeren</translation>
    </message>
    <message>
        <source>Local network</source>
        <extracomment>460 conn_mode_lan</extracomment>
        <translation>Lokalt netværk</translation>
    </message>
    <message>
        <source>Share with Others</source>
        <extracomment>462 tutorial_third_title</extracomment>
        <translation>Del med andre</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <extracomment>463 msi_maintenance_dlg_remove_label</extracomment>
        <translation>Afinstaller</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setting Up [ProductName]</source>
        <extracomment>465 msi_progress_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont][ProductName] konfigureres</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account information.</source>
        <extracomment>466 wizard_connection_setting_desc</extracomment>
        <translation>Angiv adressen på din NAS-enhed og dine kontooplysninger.</translation>
    </message>
    <message>
        <source>{\DlgFont8}I accept the terms of the License Agreement</source>
        <extracomment>467 msi_eula_dlg_accept</extracomment>
        <translation>{\DlgFont8}Jeg accepterer vilkårene i licensaftalen</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <extracomment>468 err_share_nonexist_short</extracomment>
        <translation>Den delte mappe blev ikke fundet</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>469 history_yesterday</extracomment>
        <translation>I går</translation>
    </message>
    <message>
        <source>Sharing links cannot be used because Bridgeway is not enabled on the NAS. Please contact the NAS administrator.</source>
        <extracomment>470 err_bridgeway_file_sharing</extracomment>
        <translation>Delingslinks kan ikke bruges, fordi Bridgeway ikke er aktiveret på NAS-enheden. Kontakt NAS-administratoren.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Syncing it may cause data conflicts.</source>
        <extracomment>471 wizard_conflict_backup_warning</extracomment>
        <translation>Denne mappe bruges af en sikkerhedskopieringsopgave. Hvis den synkroniseres, kan det medføre datakonflikter.</translation>
    </message>
    <message>
        <source>Change</source>
        <extracomment>472 msi_maintenance_dlg_change_label</extracomment>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <extracomment>473 wizard_setup_quick_mode_title</extracomment>
        <translation>Hurtig konfiguration</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <extracomment>474 prev_x_pages</extracomment>
        <translation>Forrige %1 sider</translation>
    </message>
    <message>
        <source>%1 cannot be synced because it is in use, or acccess is denied.</source>
        <extracomment>475 label_locked_file</extracomment>
        <translation>%1 kan ikke synkroniseres, fordi filen er i brug, eller fordi der ikke er adgang til den.</translation>
    </message>
    <message>
        <source>Sync your files across all your computers</source>
        <extracomment>476 msg_sub_slogan</extracomment>
        <translation>Synkroniser dine filer på alle dine computere</translation>
    </message>
    <message>
        <source>If a file has been changed both on this computer and on the NAS:</source>
        <extracomment>477 conflict_policy_desc</extracomment>
        <translation>Hvis en fil er blevet ændret både på denne computer og på NAS-enheden:</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <extracomment>478 msg_upgrading</extracomment>
        <translation>Opgraderer...</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <extracomment>479 status_desc_abnormal_short</extracomment>
        <translation>Kræver opmærksomhed</translation>
    </message>
    <message>
        <source>Date range</source>
        <extracomment>480 history_date_range</extracomment>
        <translation>Datointerval</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>481 history_delete</extracomment>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Mount points are not supported</source>
        <extracomment>483 err_share_mountpt_short</extracomment>
        <translation>Tilslutningspunkter understøttes ikke</translation>
    </message>
    <message>
        <source>Copyright (c) %1 Larkmoor. All rights reserved.</source>
        <extracomment>484 msg_about</extracomment>
        <translation>Copyright (c) %1 Larkmoor. Alle rettigheder forbeholdes.</translation>
    </message>
    <message>
        <source>NAS</source>
        <extracomment>485 title_chart_tray</extracomment>
        <translation>NAS</translation>
    </message>
    <message>
        <source>Open file</source>
        <extracomment>486 open_file</extracomment>
        <translation>Åbn fil</translation>
    </message>
    <message>
        <source>Always keep the version on the NAS</source>
        <extracomment>487 conflict_policy_overwrite_client</extracomment>
        <translation>Behold altid versionen på NAS-enheden</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <extracomment>489 title_icon_double_clicked</extracomment>
        <translation>Når der dobbeltklikkes på ikonet i meddelelsesområdet</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>490 btn_next</extracomment>
        <translation>Næste</translation>
    </message>
    <message>
        <source>The sync database is damaged. Please restart or reinstall Larkmoor Drive.</source>
        <extracomment>491 err_database</extracomment>
        <translation>Synkroniseringsdatabasen er beskadiget. Genstart eller geninstaller Larkmoor Drive.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <extracomment>493 history_last_month</extracomment>
        <translation>Seneste 30 dage</translation>
    </message>
    <message>
        <source>Your quota on the NAS is not large enough to upload &quot;%1&quot;.</source>
        <extracomment>494 msg_quotafull</extracomment>
        <translation>Din kvote på NAS-enheden er ikke stor nok til at uploade ”%1”.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <extracomment>495 time_minute_ago</extracomment>
        <translation>For %1 minut(ter) siden</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <extracomment>497 msg_progress</extracomment>
        <translation>Trin %1 af %2</translation>
    </message>
    <message>
        <source>The shared folder does not exist or has been removed. Please choose another one.</source>
        <extracomment>499 wizard_share_nonexist_sync_folder_warning</extracomment>
        <translation>Den delte mappe findes ikke eller er blevet fjernet. Vælg en anden.</translation>
    </message>
    <message>
        <source>This folder contains, or lies inside, another sync folder. Please choose another one.</source>
        <extracomment>500 wizard_conflict_sync_folder_warning</extracomment>
        <translation>Denne mappe indeholder eller ligger i en anden synkroniseringsmappe. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>No Thanks</source>
        <extracomment>501 no_need</extracomment>
        <translation>Nej tak</translation>
    </message>
    <message>
        <source>Choose a Sync Direction</source>
        <extracomment>502 selective_sync_direction_title</extracomment>
        <translation>Vælg en synkroniseringsretning</translation>
    </message>
    <message>
        <source>Internet</source>
        <extracomment>503 conn_mode_wan</extracomment>
        <translation>Internet</translation>
    </message>
    <message>
        <source>You have reached the maximum number of sync folders.</source>
        <extracomment>504 err_share_limit</extracomment>
        <translation>Du har nået det maksimale antal synkroniseringsmapper.</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>506 history_reset</extracomment>
        <translation>Nulstil</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <extracomment>507 err_max_tries</extracomment>
        <translation>For mange mislykkede forsøg. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from %1?</source>
        <extracomment>508 msg_confirm_unlink</extracomment>
        <translation>Er du sikker på, at du vil fjerne denne computers tilknytning til %1?</translation>
    </message>
    <message>
        <source>Domain name, IP address or Bridgeway ID</source>
        <extracomment>509 title_ip_detail</extracomment>
        <translation>Domænenavn, IP-adresse eller Bridgeway-id</translation>
    </message>
    <message>
        <source>Sync extended attributes and permissions</source>
        <extracomment>511 selective_enable_entire_attribute_check</extracomment>
        <translation>Synkroniser udvidede attributter og tilladelser</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <extracomment>512 err_user_name_empty</extracomment>
        <translation>Angiv dit brugernavn.</translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>513 manage_share_tab_name</extracomment>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>This computer</source>
        <extracomment>514 title_chart_local</extracomment>
        <translation>Denne computer</translation>
    </message>
    <message>
        <source>Sharing</source>
        <extracomment>515 title_bubble_sharing</extracomment>
        <translation>Deling</translation>
    </message>
    <message>
        <source>Connect through Bridgeway</source>
        <extracomment>517 use_bridgeway</extracomment>
        <translation>Opret forbindelse via Bridgeway</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications (you will need to restart your computer)</source>
        <extracomment>518 msi_filesinuse_dlg_closenone</extracomment>
        <translation>Luk i&amp;kke programmerne (en genstart af computeren er nødvendig)</translation>
    </message>
    <message>
        <source>Larkmoor Drive is ready.</source>
        <extracomment>519 desc_lkmr_env_preparation_done</extracomment>
        <translation>Larkmoor Drive er klar.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <extracomment>520 msi_button_no</extracomment>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <extracomment>522 block_file_table_title</extracomment>
        <translation>Udelukkede filer</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>523 history_file</extracomment>
        <translation>Fil</translation>
    </message>
</context>
</TS>
