<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Searching for NAS devices on your local network...</source>
        <extracomment>0 local_hb_search</extracomment>
        <translation>Recherche de NAS sur votre réseau local...</translation>
    </message>
    <message>
        <source>April</source>
        <extracomment>1 month_apr</extracomment>
        <translation>avril</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be uploaded to the NAS.</source>
        <extracomment>2 read_only_tooltip</extracomment>
        <translation>Vous disposez d&apos;un accès en lecture seule à ce dossier. Les modifications effectuées sur cet ordinateur ne seront pas envoyées vers le NAS.</translation>
    </message>
    <message>
        <source>Choose the folders, sync direction and file filters yourself (recommended for experienced users)&#x200b;.</source>
        <extracomment>3 wizard_setup_advan_mode_desc</extracomment>
        <translation>Choisissez vous-même les dossiers, le sens de synchronisation et les filtres de fichiers (recommandé pour les utilisateurs expérimentés).</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>4 history_from</extracomment>
        <translation>Du</translation>
    </message>
    <message>
        <source>Do you want to stop the installation of [ProductName]?</source>
        <extracomment>5 msi_cancel_dlg_text</extracomment>
        <translation>Voulez-vous interrompre l&apos;installation de [ProductName]&#xa0;?</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <extracomment>6 msi_welcome_dlg_title, 80 msi_readyremove_dlg_title, 99 msi_maintenance_welcome_dlg_title, 242 msi_error_dlg_title, 256 msi_userexit_dlg_title, 276 msi_fatalerror_dlg_title, 277 msi_eula_dlg_title, 345 msi_filesinuse_dlg_title, 356 msi_maintenance_dlg_title, 425 msi_exit_dlg_title, 441 msi_progress_dlg_title, 456 msi_readyrepair_dlg_title, 488 msi_ready_dlg_title, 492 msi_cancel_dlg_title</extracomment>
        <translation>Installation de [ProductName]</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>7 col_file_action, 505 history_action</extracomment>
        <translation>Action</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <extracomment>8 msi_welcome_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}Bienvenue dans l&apos;assistant d&apos;installation de [ProductName]</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <extracomment>9 msi_exit_dlg_description, 297 msi_userexit_dlg_description2, 445 msi_exit_dlg_text, 461 msi_fatalerror_dlg_description2</extracomment>
        <translation>Cliquez sur le bouton Terminer pour quitter l&apos;assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>Unable to reach the network. Please check your network connection and try again.</source>
        <extracomment>10 err_network</extracomment>
        <translation>Impossible d&apos;accéder au réseau. Vérifiez votre connexion réseau, puis réessayez.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <extracomment>11 one_way_sync_download, 349 one_way_download</extracomment>
        <translation>Téléchargement unidirectionnel</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>12 btn_help</extracomment>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Sync is enabled for this folder.</source>
        <extracomment>13 share_enabled</extracomment>
        <translation>La synchronisation est activée pour ce dossier.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <extracomment>14 common_forminvalid</extracomment>
        <translation>Certains champs contiennent des valeurs non valides. Corrigez-les avant de continuer.</translation>
    </message>
    <message>
        <source>Currently syncing</source>
        <extracomment>15 tray_current_syncing</extracomment>
        <translation>Synchronisation en cours</translation>
    </message>
    <message>
        <source>The Bridgeway service is temporarily unavailable. Please try again later.</source>
        <extracomment>16 err_autoconn_sys</extracomment>
        <translation>Le service Bridgeway est temporairement indisponible. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <extracomment>17 conn_mode_direct</extracomment>
        <translation>Connexion directe</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. Please check the certificate or contact the NAS administrator.</source>
        <extracomment>18 wizard_ssl_verify_fail_sync_folder_warning, 521 err_ssl_verify_fail</extracomment>
        <translation>Le certificat SSL du NAS n&apos;a pas pu être vérifié. Vérifiez le certificat ou contactez l&apos;administrateur du NAS.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <extracomment>19 msi_button_exit</extracomment>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Syncing of &quot;%1&quot; has stopped because of an error. Click here for details.</source>
        <extracomment>20 notify_abnormal</extracomment>
        <translation>La synchronisation de «&#xa0;%1&#xa0;» s&apos;est arrêtée en raison d&apos;une erreur. Cliquez ici pour plus de détails.</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please try again.</source>
        <extracomment>21 msg_test_username_fail</extracomment>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>This folder cannot be used as a sync folder. Please choose another one.</source>
        <extracomment>22 wizard_invalid_sync_folder_warning</extracomment>
        <translation>Ce dossier ne peut pas être utilisé comme dossier de synchronisation. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>Larkmoor Drive will keep the following folder in sync with your NAS:</source>
        <extracomment>23 quick_mode_finish_page_desc</extracomment>
        <translation>Larkmoor Drive synchronisera en permanence le dossier suivant avec votre NAS&#xa0;:</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <extracomment>24 manage_proxy_chk_manual</extracomment>
        <translation>Configurer le proxy manuellement</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <extracomment>25 err_auth_short, 238 status_desc_auth_short</extracomment>
        <translation>Échec de l&apos;authentification</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <extracomment>26 status_desc_version_short</extracomment>
        <translation>Version non prise en charge</translation>
    </message>
    <message>
        <source>October</source>
        <extracomment>27 month_oct</extracomment>
        <translation>octobre</translation>
    </message>
    <message>
        <source>Computer name</source>
        <extracomment>28 col_computer_name</extracomment>
        <translation>Nom de l&apos;ordinateur</translation>
    </message>
    <message>
        <source>Saturday</source>
        <extracomment>29 saturday</extracomment>
        <translation>samedi</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <extracomment>30 unlink_connection</extracomment>
        <translation>Dissocier la connexion</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <extracomment>31 manage_proxy_server_ip</extracomment>
        <translation>Adresse du serveur proxy</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Remove [ProductName]</source>
        <extracomment>32 msi_readyremove_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Prêt à supprimer [ProductName]</translation>
    </message>
    <message>
        <source>This wizard lets you change, repair or remove [ProductName]. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <extracomment>33 msi_maintenance_welcome_dlg_description</extracomment>
        <translation>Cet assistant vous permet de modifier, de réparer ou de supprimer [ProductName]. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter l&apos;assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>34 history_upload</extracomment>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <extracomment>35 manage_proxy_chk_account</extracomment>
        <translation>Le serveur proxy requiert une authentification</translation>
    </message>
    <message>
        <source>Choose a Setup Mode</source>
        <extracomment>36 wizard_setup_mode_page_title</extracomment>
        <translation>Choisir un mode de configuration</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>37 desc_inactive, 292 title_inactive</extracomment>
        <translation>Inactif</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Files will be downloaded to this computer, but local changes will not be uploaded.</source>
        <extracomment>38 wizard_readonly_sync_folder_warning</extracomment>
        <translation>Vous disposez d&apos;un accès en lecture seule à ce dossier. Les fichiers seront téléchargés sur cet ordinateur, mais les modifications locales ne seront pas envoyées.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <extracomment>39 manage_setting_applying</extracomment>
        <translation>Application des paramètres...</translation>
    </message>
    <message>
        <source>Loading...</source>
        <extracomment>40 loading</extracomment>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Pause Connection</source>
        <extracomment>41 pause_connection</extracomment>
        <translation>Suspendre la connexion</translation>
    </message>
    <message>
        <source>The text cannot be longer than %1 characters.</source>
        <extracomment>42 common_maxlengthtext</extracomment>
        <translation>Le texte ne peut pas dépasser %1 caractères.</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>43 err_short, 77 title_folder_readonly, 449 err_common</extracomment>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <extracomment>44 time_hour_ago</extracomment>
        <translation>Il y a %1 heure(s)</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <extracomment>45 common_fieldblank</extracomment>
        <translation>Ce champ est obligatoire.</translation>
    </message>
    <message>
        <source>A system error occurred while accessing this folder. Please try again later.</source>
        <extracomment>46 wizard_system_err_sync_folder_warning</extracomment>
        <translation>Une erreur système s&apos;est produite lors de l&apos;accès à ce dossier. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Is Complete</source>
        <extracomment>47 msi_exit_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}L&apos;installation de [ProductName] est terminée</translation>
    </message>
    <message>
        <source>June</source>
        <extracomment>48 month_jun</extracomment>
        <translation>juin</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>49 tray_resume, 262 session_resume_btn</extracomment>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>50 msg_disabled</extracomment>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to [ProductName] Maintenance</source>
        <extracomment>51 msi_maintenance_welcome_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}Bienvenue dans la maintenance de [ProductName]</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>52 history_customize</extracomment>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>This computer is already linked to %1. Linking it to the same NAS again may cause file conflicts. Do you want to continue?</source>
        <extracomment>53 wizard_setup_repeat_warning2</extracomment>
        <translation>Cet ordinateur est déjà associé à %1. Une nouvelle association au même NAS peut entraîner des conflits de fichiers. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>54 btn_shareitem_delete</extracomment>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>55 version</extracomment>
        <translation>Version</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <extracomment>56 btn_choseother</extracomment>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>Please review the settings below, and then click Finish to start syncing.</source>
        <extracomment>57 msg_info_description</extracomment>
        <translation>Vérifiez les paramètres ci-dessous, puis cliquez sur Terminer pour lancer la synchronisation.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <extracomment>58 conflict_policy_compare_mtime</extracomment>
        <translation>Conserver la version modifiée le plus récemment</translation>
    </message>
    <message>
        <source>Date created</source>
        <extracomment>59 col_create_time</extracomment>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <extracomment>60 time_day_ago</extracomment>
        <translation>Il y a %1 jour(s)</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <extracomment>61 err_invalid_port_number</extracomment>
        <translation>Le numéro de port doit être compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Sync History</source>
        <extracomment>62 history_page_title</extracomment>
        <translation>Historique de synchronisation</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <extracomment>63 btn_edit_connection</extracomment>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>Friday</source>
        <extracomment>64 friday</extracomment>
        <translation>vendredi</translation>
    </message>
    <message>
        <source>Destination</source>
        <extracomment>65 col_file_destination</extracomment>
        <translation>Destination</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Please confirm the new certificate to resume syncing.</source>
        <extracomment>66 err_ssl_change, 348 wizard_ssl_change_sync_folder_warning</extracomment>
        <translation>Le certificat SSL du NAS a changé. Confirmez le nouveau certificat pour reprendre la synchronisation.</translation>
    </message>
    <message>
        <source>The folders that you have deselected will be permantely removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <extracomment>67 selective_sync_remove_msg</extracomment>
        <translation>Les dossiers que vous avez désélectionnés seront définitivement supprimés de cet ordinateur. Les copies sur le NAS seront conservées. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <extracomment>68 selective_sync, 71 session_selective_sync_btn</extracomment>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>Open Larkmoor Drive</source>
        <extracomment>69 open_main_app, 145 title_open_larkmoor</extracomment>
        <translation>Ouvrir Larkmoor Drive</translation>
    </message>
    <message>
        <source>File filters</source>
        <extracomment>70 file_selective_sync</extracomment>
        <translation>Filtres de fichiers</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <extracomment>72 msi_button_finish</extracomment>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>File name</source>
        <extracomment>73 history_file_name, 285 col_file_name</extracomment>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>File names that begin with a period (.)</source>
        <extracomment>74 block_point_prefix</extracomment>
        <translation>Noms de fichiers commençant par un point (.)</translation>
    </message>
    <message>
        <source>Files with these names will not be synced. Separate the names with semicolons.</source>
        <extracomment>75 block_file_name_tool_tip</extracomment>
        <translation>Les fichiers portant ces noms ne seront pas synchronisés. Séparez les noms par des points-virgules.</translation>
    </message>
    <message>
        <source>Uploading</source>
        <extracomment>76 label_uploading</extracomment>
        <translation>Envoi en cours</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer. Larkmoor Drive will keep them in sync.</source>
        <extracomment>78 wizard_new_sync_folder_desc</extracomment>
        <translation>Choisissez un dossier sur le NAS et un dossier sur cet ordinateur. Larkmoor Drive les maintiendra synchronisés.</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Larkmoor Drive will be installed for your user account only. Do you want to continue?</source>
        <extracomment>79 NSIS_NOT_ADMIN_CONFIRM</extracomment>
        <translation>Vous n&apos;êtes pas connecté en tant qu&apos;administrateur. Larkmoor Drive sera installé uniquement pour votre compte d&apos;utilisateur. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>The sync service is disabled for your account. Please contact the NAS administrator.</source>
        <extracomment>81 err_orlaqdisable</extracomment>
        <translation>Le service de synchronisation est désactivé pour votre compte. Contactez l&apos;administrateur du NAS.</translation>
    </message>
    <message>
        <source>This is not the NAS that was originally linked. Please check the address or set up a new connection.</source>
        <extracomment>82 err_hb_not_match</extracomment>
        <translation>Il ne s&apos;agit pas du NAS associé à l&apos;origine. Vérifiez l&apos;adresse ou configurez une nouvelle connexion.</translation>
    </message>
    <message>
        <source>You do not have permission to share this file. Please contact the NAS administrator.</source>
        <extracomment>83 sharing_restrict</extracomment>
        <translation>Vous n&apos;êtes pas autorisé à partager ce fichier. Contactez l&apos;administrateur du NAS.</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>84 manage_option_tab_name</extracomment>
        <translation>Général</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <extracomment>85 manage_setting_not_save</extracomment>
        <translation>Vos modifications n&apos;ont pas été enregistrées. Voulez-vous les abandonner&#xa0;?</translation>
    </message>
    <message>
        <source>Username</source>
        <extracomment>86 title_usr, 92 manage_proxy_label_username</extracomment>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Manage</source>
        <extracomment>87 btn_manage</extracomment>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove [ProductName] from this computer.</source>
        <extracomment>88 msi_readyremove_dlg_description</extracomment>
        <translation>L&apos;assistant d&apos;installation est prêt à supprimer [ProductName] de cet ordinateur.</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>89 history_folder</extracomment>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>There are no folders available to sync.</source>
        <extracomment>90 no_valid_folder</extracomment>
        <translation>Aucun dossier n&apos;est disponible pour la synchronisation.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <extracomment>91 manage_share_local_syncfolder</extracomment>
        <translation>Dossier local</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <extracomment>93 wizard_setup_advan_mode_title</extracomment>
        <translation>Configuration avancée</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>94 status_desc_pause, 269 tray_status_paused</extracomment>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Welcome to Larkmoor Drive</source>
        <extracomment>95 title_welcome</extracomment>
        <translation>Bienvenue dans Larkmoor Drive</translation>
    </message>
    <message>
        <source>Folder selection</source>
        <extracomment>96 folder_selective_sync</extracomment>
        <translation>Sélection des dossiers</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in a few clicks. All your files will be synced to a single folder with the recommended settings.</source>
        <extracomment>97 wizard_setup_quick_mode_desc</extracomment>
        <translation>Associez cet ordinateur à votre NAS en quelques clics. Tous vos fichiers seront synchronisés dans un seul dossier avec les paramètres recommandés.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <extracomment>98 tray_opendir, 415 open_folder</extracomment>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <extracomment>100 manage_option_synchronization_mode</extracomment>
        <translation>Sens de synchronisation</translation>
    </message>
    <message>
        <source>Add a sync folder to an existing connection</source>
        <extracomment>101 wizard_sync_folder_new_session</extracomment>
        <translation>Ajouter un dossier de synchronisation à une connexion existante</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <extracomment>102 advan_setup_wizard</extracomment>
        <translation>Assistant de configuration avancée</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <extracomment>103 context_menu_filter_folders</extracomment>
        <translation>Ne pas synchroniser ces dossiers</translation>
    </message>
    <message>
        <source>A new version of Larkmoor Drive is available. Click here to update.</source>
        <extracomment>104 tray_click_to_update</extracomment>
        <translation>Une nouvelle version de Larkmoor Drive est disponible. Cliquez ici pour effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>A newer version of Larkmoor Drive is already installed. To install this version, please uninstall the current version first.</source>
        <extracomment>105 NSIS_LARKMOOR_INSTALLED_NEWER</extracomment>
        <translation>Une version plus récente de Larkmoor Drive est déjà installée. Pour installer cette version, désinstallez d&apos;abord la version actuelle.</translation>
    </message>
    <message>
        <source>A different NAS has been found at this address. Please link this computer again.</source>
        <extracomment>106 status_desc_hb_changed</extracomment>
        <translation>Un autre NAS a été détecté à cette adresse. Associez de nouveau cet ordinateur.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <extracomment>107 manage_option_merge_mode</extracomment>
        <translation>Mode de fusion</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>108 btn_cancel, 241 management_proxy_cancel_btn, 496 msi_button_cancel</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>To use selective sync, please update Larkmoor Server on your NAS.</source>
        <extracomment>109 update_pkg_for_selective_sync</extracomment>
        <translation>Pour utiliser la synchronisation sélective, mettez à jour Larkmoor Server sur votre NAS.</translation>
    </message>
    <message>
        <source>Files that match the following names or extensions will not be synced.</source>
        <extracomment>110 black_list_desc</extracomment>
        <translation>Les fichiers correspondant aux noms ou extensions suivants ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>Choose the folders on the NAS that you want to sync to this computer.</source>
        <extracomment>111 advan_mode_set_share_folder_info</extracomment>
        <translation>Choisissez les dossiers du NAS à synchroniser avec cet ordinateur.</translation>
    </message>
    <message>
        <source>Everything you put into this folder is synced to your NAS and to all your linked computers.</source>
        <extracomment>112 tutorial_first_desc</extracomment>
        <translation>Tout ce que vous placez dans ce dossier est synchronisé avec votre NAS et avec tous vos ordinateurs associés.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <extracomment>113 title_conn_mode</extracomment>
        <translation>Mode de connexion</translation>
    </message>
    <message>
        <source>ID</source>
        <extracomment>114 title_id, 464 col_id</extracomment>
        <translation>ID</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been reached. Please free up some space or contact the NAS administrator.</source>
        <extracomment>115 msg_share_quotafull</extracomment>
        <translation>Le quota du dossier partagé «&#xa0;%1&#xa0;» est atteint. Libérez de l&apos;espace ou contactez l&apos;administrateur du NAS.</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <extracomment>116 manage_proxy_title</extracomment>
        <translation>Paramètres du proxy</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <extracomment>117 manage_option_sync_mode</extracomment>
        <translation>Mode de synchronisation</translation>
    </message>
    <message>
        <source>Summary</source>
        <extracomment>118 msg_info</extracomment>
        <translation>Récapitulatif</translation>
    </message>
    <message>
        <source>Connection Already Exists</source>
        <extracomment>119 wizard_setup_repeat_warning_title</extracomment>
        <translation>La connexion existe déjà</translation>
    </message>
    <message>
        <source>Folder name</source>
        <extracomment>120 folder_name</extracomment>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <extracomment>121 two_way_sync</extracomment>
        <translation>Synchronisation bidirectionnelle</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <extracomment>122 msi_maintenance_dlg_change_tooltip</extracomment>
        <translation>Modifier l&apos;installation</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS. Please contact the NAS administrator.</source>
        <extracomment>123 err_user_home_disabled</extracomment>
        <translation>Le service de dossier personnel est désactivé sur le NAS. Contactez l&apos;administrateur du NAS.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Install [ProductName]</source>
        <extracomment>124 msi_ready_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Prêt à installer [ProductName]</translation>
    </message>
    <message>
        <source>March</source>
        <extracomment>125 month_mar</extracomment>
        <translation>mars</translation>
    </message>
    <message>
        <source>Your files, wherever you are</source>
        <extracomment>126 msg_slogan</extracomment>
        <translation>Vos fichiers, où que vous soyez</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License Agreement</source>
        <extracomment>127 msi_eula_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Contrat de licence</translation>
    </message>
    <message>
        <source>Get link</source>
        <extracomment>128 context_menu_share_link</extracomment>
        <translation>Obtenir le lien</translation>
    </message>
    <message>
        <source>Valid from</source>
        <extracomment>129 sharing_enable_start_at</extracomment>
        <translation>Valide à partir du</translation>
    </message>
    <message>
        <source>February</source>
        <extracomment>130 month_feb</extracomment>
        <translation>février</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <extracomment>131 err_version_short</extracomment>
        <translation>Version incompatible</translation>
    </message>
    <message>
        <source>The network connection is unstable.</source>
        <extracomment>132 tray_unstable</extracomment>
        <translation>La connexion réseau est instable.</translation>
    </message>
    <message>
        <source>Do not sync the following files:</source>
        <extracomment>133 file_black_list_label</extracomment>
        <translation>Ne pas synchroniser les fichiers suivants&#xa0;:</translation>
    </message>
    <message>
        <source>Linking...</source>
        <extracomment>134 msg_linking, 308 status_desc_linking</extracomment>
        <translation>Association en cours...</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed because an error occurred. No changes have been made to your computer. To try again later, please run the installer again.</source>
        <extracomment>135 msi_fatalerror_dlg_description1</extracomment>
        <translation>Une erreur s&apos;est produite et [ProductName] n&apos;a pas pu être installé. Aucune modification n&apos;a été apportée à votre ordinateur. Pour réessayer ultérieurement, exécutez de nouveau le programme d&apos;installation.</translation>
    </message>
    <message>
        <source>Download only</source>
        <extracomment>136 download_only</extracomment>
        <translation>Téléchargement uniquement</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists on this computer. Do you want to merge it with the folder on the NAS?</source>
        <extracomment>137 msg_mergefolder</extracomment>
        <translation>Le dossier «&#xa0;%1&#xa0;» existe déjà sur cet ordinateur. Voulez-vous le fusionner avec le dossier du NAS&#xa0;?</translation>
    </message>
    <message>
        <source>Just now</source>
        <extracomment>138 time_just_now</extracomment>
        <translation>À l&apos;instant</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <extracomment>139 conflict_policy_rename_conflict</extracomment>
        <translation>Conserver les deux versions et renommer la plus ancienne</translation>
    </message>
    <message>
        <source>Please read the following License Agreement carefully.</source>
        <extracomment>140 msi_eula_dlg_description</extracomment>
        <translation>Veuillez lire attentivement le contrat de licence suivant.</translation>
    </message>
    <message>
        <source>Find a NAS on your local network</source>
        <extracomment>141 wizard_find_local_hb_tooltip</extracomment>
        <translation>Rechercher un NAS sur votre réseau local</translation>
    </message>
    <message>
        <source>Recently Changed Files</source>
        <extracomment>142 recently_changed_title</extracomment>
        <translation>Fichiers modifiés récemment</translation>
    </message>
    <message>
        <source>Unable to enable sync for the folder &quot;%1&quot;. Please try again.</source>
        <extracomment>143 err_share_fail_enable</extracomment>
        <translation>Impossible d&apos;activer la synchronisation pour le dossier «&#xa0;%1&#xa0;». Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Finish</source>
        <extracomment>144 finish</extracomment>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Enter your 6-digit verification code</source>
        <extracomment>146 connection_enter_otp</extracomment>
        <translation>Saisissez votre code de vérification à 6 chiffres</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <extracomment>147 sharing_link</extracomment>
        <translation>Lien de partage</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <extracomment>148 next_x_pages</extracomment>
        <translation>%1 pages suivantes</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <extracomment>149 msg_test_connect</extracomment>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <extracomment>150 msg_language_restart</extracomment>
        <translation>Redémarrez %1 pour appliquer les nouveaux paramètres de langue.</translation>
    </message>
    <message>
        <source>You can open Larkmoor Drive at any time from its tray icon.</source>
        <extracomment>151 msg_finish_way</extracomment>
        <translation>Vous pouvez ouvrir Larkmoor Drive à tout moment depuis son icône dans la zone de notification.</translation>
    </message>
    <message>
        <source>Rename</source>
        <extracomment>152 history_rename</extracomment>
        <translation>Renommage</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <extracomment>153 msi_button_next</extracomment>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>154 yes</extracomment>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Folder path</source>
        <extracomment>155 title_folderpath</extracomment>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>An unknown issue has occurred, please restart Larkmoor Drive.</source>
        <extracomment>156 msg_error</extracomment>
        <translation>Un problème inconnu s&apos;est produit. Veuillez redémarrer Larkmoor Drive.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <extracomment>157 read_only</extracomment>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <extracomment>158 manage_option_use_black_white_icon</extracomment>
        <translation>Utiliser une icône monochrome dans la zone de notification</translation>
    </message>
    <message>
        <source>Resume Connection</source>
        <extracomment>159 resume_connection</extracomment>
        <translation>Reprendre la connexion</translation>
    </message>
    <message>
        <source>May</source>
        <extracomment>160 month_may</extracomment>
        <translation>mai</translation>
    </message>
    <message>
        <source>Larkmoor Drive is starting...</source>
        <extracomment>161 msg_startup</extracomment>
        <translation>Démarrage de Larkmoor Drive...</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>162 msi_readyrepair_dlg_text</extracomment>
        <translation>Cliquez sur Réparer pour réparer l&apos;installation de [ProductName]. Cliquez sur Précédent pour revoir vos paramètres ou sur Annuler pour quitter l&apos;assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Repair [ProductName]</source>
        <extracomment>163 msi_readyrepair_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Prêt à réparer [ProductName]</translation>
    </message>
    <message>
        <source>Unable to reach the Bridgeway server. Please check your network connection and try again.</source>
        <extracomment>164 err_autoconn_ctrl</extracomment>
        <translation>Impossible d&apos;accéder au serveur Bridgeway. Vérifiez votre connexion réseau, puis réessayez.</translation>
    </message>
    <message>
        <source>The contents of both folders will be combined. Files that exist in both folders will be handled according to your conflict policy.</source>
        <extracomment>165 info_mergefolder</extracomment>
        <translation>Le contenu des deux dossiers sera combiné. Les fichiers présents dans les deux dossiers seront traités selon votre règle de gestion des conflits.</translation>
    </message>
    <message>
        <source>Unable to resolve a conflict for the file &quot;%1&quot;.</source>
        <extracomment>166 err_conflict</extracomment>
        <translation>Impossible de résoudre un conflit pour le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <extracomment>167 selective_sync_loading</extracomment>
        <translation>Chargement de la liste des dossiers...</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this sync folder? Your files on the NAS and on this computer will be kept.</source>
        <extracomment>168 msg_shareitem_delete</extracomment>
        <translation>Voulez-vous vraiment supprimer ce dossier de synchronisation&#xa0;? Vos fichiers seront conservés sur le NAS et sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Verifying your account...</source>
        <extracomment>169 msg_checkpass</extracomment>
        <translation>Vérification de votre compte...</translation>
    </message>
    <message>
        <source>Your version of Larkmoor Drive is too old for this NAS. Please update Larkmoor Drive and try again.</source>
        <extracomment>170 err_version_client</extracomment>
        <translation>Votre version de Larkmoor Drive est trop ancienne pour ce NAS. Mettez à jour Larkmoor Drive, puis réessayez.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty. Its contents will be merged with the folder on the NAS.</source>
        <extracomment>171 msg_folder_not_empty</extracomment>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;est pas vide. Son contenu sera fusionné avec le dossier du NAS.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link. Please try again later.</source>
        <extracomment>172 err_orlaq_share_link</extracomment>
        <translation>Impossible de créer un lien de partage. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <extracomment>173 msi_button_remove</extracomment>
        <translation>Supp&amp;rimer</translation>
    </message>
    <message>
        <source>Expires on</source>
        <extracomment>174 sharing_enable_expire_at</extracomment>
        <translation>Expire le</translation>
    </message>
    <message>
        <source>Expires after</source>
        <extracomment>175 sharing_exp_after</extracomment>
        <translation>Expire après</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <extracomment>176 manage_share_title</extracomment>
        <translation>Dossiers de synchronisation</translation>
    </message>
    <message>
        <source>Click Remove to uninstall [ProductName]. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>177 msi_readyremove_dlg_text</extracomment>
        <translation>Cliquez sur Supprimer pour désinstaller [ProductName]. Cliquez sur Précédent pour revoir vos paramètres ou sur Annuler pour quitter l&apos;assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>178 col_time, 273 history_time</extracomment>
        <translation>Heure</translation>
    </message>
    <message>
        <source>File names:</source>
        <extracomment>179 block_file_name_label</extracomment>
        <translation>Noms de fichiers&#xa0;:</translation>
    </message>
    <message>
        <source>The volume that holds the sync folder &quot;%1&quot; is not mounted. Please mount it to resume syncing.</source>
        <extracomment>180 err_syncfolder_not_mounted</extracomment>
        <translation>Le volume qui contient le dossier de synchronisation «&#xa0;%1&#xa0;» n&apos;est pas monté. Montez-le pour reprendre la synchronisation.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <extracomment>181 manage_proxy_chk_sys_proxy</extracomment>
        <translation>Utiliser les paramètres proxy du système</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <extracomment>182 manage_share_enable</extracomment>
        <translation>Activer la synchronisation</translation>
    </message>
    <message>
        <source>You do not have permission to download this file.</source>
        <extracomment>183 desc_cannot_download</extracomment>
        <translation>Vous n&apos;êtes pas autorisé à télécharger ce fichier.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <extracomment>184 notify_new_share_short</extracomment>
        <translation>Nouveau dossier partagé</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <extracomment>185 file_ext_label</extracomment>
        <translation>Extensions de fichiers&#xa0;:</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;? Your files on the NAS and on this computer will be kept.</source>
        <extracomment>186 session_unlink_confirm_msg</extracomment>
        <translation>Voulez-vous vraiment arrêter de synchroniser «&#xa0;%1&#xa0;»&#xa0;? Vos fichiers seront conservés sur le NAS et sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>187 col_file_size</extracomment>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Status:</source>
        <extracomment>188 msi_progress_dlg_status_label</extracomment>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>%1 upgrade failed (error code: %2).</source>
        <extracomment>189 wizard_client_upgrade_failed</extracomment>
        <translation>Échec de la mise à niveau de %1 (code d&apos;erreur&#xa0;: %2).</translation>
    </message>
    <message>
        <source>Unlink</source>
        <extracomment>190 action_unlink, 338 session_unlink_btn</extracomment>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>SSL Certificate Warning</source>
        <extracomment>191 title_ssl_warning</extracomment>
        <translation>Avertissement relatif au certificat SSL</translation>
    </message>
    <message>
        <source>A connection to this NAS already exists on this computer.</source>
        <extracomment>192 wizard_setup_repeat_warning_desc</extracomment>
        <translation>Une connexion à ce NAS existe déjà sur cet ordinateur.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS to upload &quot;%1&quot;.</source>
        <extracomment>193 msg_diskfull</extracomment>
        <translation>L&apos;espace libre sur le NAS est insuffisant pour envoyer «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Please enter your verification code.</source>
        <extracomment>194 err_otp_required</extracomment>
        <translation>Saisissez votre code de vérification.</translation>
    </message>
    <message>
        <source>Choose Which Files to Sync</source>
        <extracomment>195 selective_sync_file_title</extracomment>
        <translation>Choisir les fichiers à synchroniser</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>196 tray_exit</extracomment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Please confirm the folders to be synced.</source>
        <extracomment>197 wizard_set_sync_folder_desc</extracomment>
        <translation>Veuillez confirmer les dossiers à synchroniser.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <extracomment>198 msg_welcome</extracomment>
        <translation>Bienvenue&#xa0;!</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <extracomment>199 msg_seldir</extracomment>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another one.</source>
        <extracomment>200 wizard_access_deny_sync_folder_warning</extracomment>
        <translation>Vous n&apos;êtes pas autorisé à accéder à ce dossier. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <extracomment>201 tray_updating</extracomment>
        <translation>Mise à jour...</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <extracomment>202 manage_share_change_folder</extracomment>
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>203 title_value</extracomment>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Larkmoor is already installed. To install this version, please uninstall the current version first</source>
        <extracomment>204 NSIS_LARKMOOR_INSTALLED_CURRENT</extracomment>
        <translation>Larkmoor est déjà installé. Pour installer cette version, désinstallez d&apos;abord la version actuelle</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to install [ProductName] on this computer.</source>
        <extracomment>205 msi_ready_dlg_description</extracomment>
        <translation>L&apos;assistant d&apos;installation est prêt à installer [ProductName] sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>206 title_name</extracomment>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Add Sync Folder</source>
        <extracomment>207 session_add_btn</extracomment>
        <translation>Ajouter un dossier de synchronisation</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <extracomment>208 open_sync_status</extracomment>
        <translation>Afficher l&apos;état de la synchronisation</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Failed</source>
        <extracomment>209 msi_fatalerror_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}Échec de l&apos;installation de [ProductName]</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <extracomment>210 manage_setting_no_change</extracomment>
        <translation>Aucun paramètre n&apos;a été modifié.</translation>
    </message>
    <message>
        <source>SSL</source>
        <extracomment>211 title_ssl_enable</extracomment>
        <translation>SSL</translation>
    </message>
    <message>
        <source>You can open Larkmoor Drive at any time to sync more folders or change the sync settings.</source>
        <extracomment>212 quick_mode_finish_page_more_detail</extracomment>
        <translation>Vous pouvez ouvrir Larkmoor Drive à tout moment pour synchroniser d&apos;autres dossiers ou modifier les paramètres de synchronisation.</translation>
    </message>
    <message>
        <source>Maximum number of downloads</source>
        <extracomment>213 sharing_enable_expire_times</extracomment>
        <translation>Nombre maximal de téléchargements</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>214 history_download</extracomment>
        <translation>Téléchargement</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>215 history_date</extracomment>
        <translation>Date</translation>
    </message>
    <message>
        <source>This computer is already linked to this NAS.</source>
        <extracomment>216 err_link_same_hb</extracomment>
        <translation>Cet ordinateur est déjà associé à ce NAS.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <extracomment>217 manage_proxy_chk_no_proxy</extracomment>
        <translation>Ne pas utiliser de proxy</translation>
    </message>
    <message>
        <source>The version of Larkmoor Server on the NAS is too old. Please update it and try again.</source>
        <extracomment>218 err_version_server</extracomment>
        <translation>La version de Larkmoor Server installée sur le NAS est trop ancienne. Mettez-la à jour, puis réessayez.</translation>
    </message>
    <message>
        <source>How would you like to set up Larkmoor Drive?</source>
        <extracomment>219 wizard_setup_mode_page_desc</extracomment>
        <translation>Comment souhaitez-vous configurer Larkmoor Drive&#xa0;?</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>220 history_keyword</extracomment>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>Download History</source>
        <extracomment>221 main_download_history</extracomment>
        <translation>Historique des téléchargements</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <extracomment>222 manage_option_enable_icon_overlay</extracomment>
        <translation>Afficher les icônes d&apos;état de synchronisation sur les fichiers et les dossiers</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>223 msi_ready_dlg_text</extracomment>
        <translation>Cliquez sur Installer pour commencer l&apos;installation. Cliquez sur Précédent pour revoir vos paramètres ou sur Annuler pour quitter l&apos;assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>The download has been canceled.</source>
        <extracomment>224 msg_download_aborted</extracomment>
        <translation>Le téléchargement a été annulé.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <extracomment>225 title_folder_nonempty</extracomment>
        <translation>Dossier non vide</translation>
    </message>
    <message>
        <source>Choose which features of [ProductName] are installed on this computer.</source>
        <extracomment>226 msi_maintenance_dlg_change_text</extracomment>
        <translation>Choisissez les fonctionnalités de [ProductName] à installer sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS has been reached. Please free up some space or contact the NAS administrator.</source>
        <extracomment>227 wizard_quotafull_sync_folder_warning, 271 status_desc_quotafull</extracomment>
        <translation>Votre quota de stockage sur le NAS est atteint. Libérez de l&apos;espace ou contactez l&apos;administrateur du NAS.</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>228 btn_ok, 516 msi_button_ok</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open My Folder</source>
        <extracomment>229 quick_mode_open_folder_btn</extracomment>
        <translation>Ouvrir mon dossier</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <extracomment>230 dont_show_msg</extracomment>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>Sync will be disabled for this folder, and its files will be permantely removed from this computer. The copies on the NAS will be kept.</source>
        <extracomment>231 share_enable_remove_msg</extracomment>
        <translation>La synchronisation sera désactivée pour ce dossier et ses fichiers seront définitivement supprimés de cet ordinateur. Les copies sur le NAS seront conservées.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <extracomment>232 msi_button_ignore</extracomment>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard configures [ProductName].  This may take several minutes.</source>
        <extracomment>233 msi_progress_dlg_text, 344 msi_progress_dlg_description</extracomment>
        <translation>Veuillez patienter pendant que l&apos;assistant d&apos;installation configure [ProductName]. Cette opération peut prendre plusieurs minutes.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them afterwards</source>
        <extracomment>234 msi_filesinuse_dlg_closeall</extracomment>
        <translation>&amp;Fermer les applications et les redémarrer ensuite</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>235 history_search</extracomment>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Your version of Larkmoor Drive is not up-to-date. Please update it to resume syncing.</source>
        <extracomment>236 status_desc_errversion_client</extracomment>
        <translation>Votre version de Larkmoor Drive n&apos;est pas à jour. Mettez-la à jour pour reprendre la synchronisation.</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Please check your network connection and try again.</source>
        <extracomment>237 wizard_network_err_sync_folder_warning</extracomment>
        <translation>La connexion au NAS a été perdue. Vérifiez votre connexion réseau, puis réessayez.</translation>
    </message>
    <message>
        <source>The setup of [ProductName] was interrupted. No changes have been made to your computer. To install the program at another time, please run the installer again.</source>
        <extracomment>239 msi_userexit_dlg_description1</extracomment>
        <translation>L&apos;installation de [ProductName] a été interrompue. Aucune modification n&apos;a été apportée à votre ordinateur. Pour installer le programme ultérieurement, exécutez de nouveau le programme d&apos;installation.</translation>
    </message>
    <message>
        <source>You Larkmoor Server package version is not up-to-date. Please update it to resume syncing.</source>
        <extracomment>240 status_desc_errversion_server</extracomment>
        <translation>La version de votre paquet Larkmoor Server n&apos;est pas à jour. Mettez-la à jour pour reprendre la synchronisation.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>243 status_desc_perm_short, 510 err_share_perm_short</extracomment>
        <translation>Autorisation refusée</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Was Interrupted</source>
        <extracomment>244 msi_userexit_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}L&apos;installation de [ProductName] a été interrompue</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <extracomment>245 msi_readyrepair_dlg_description</extracomment>
        <translation>L&apos;assistant d&apos;installation est prêt à réparer [ProductName].</translation>
    </message>
    <message>
        <source>Preparing</source>
        <extracomment>246 progress_preparing</extracomment>
        <translation>Préparation</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <extracomment>247 history_items</extracomment>
        <translation>%1 élément(s)</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <extracomment>248 msi_exit_dlg_launch</extracomment>
        <translation>&amp;Démarrer [ProductName] maintenant</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <extracomment>249 general_setting_show_tutorial</extracomment>
        <translation>Afficher le tutoriel</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <extracomment>250 try_syncing</extracomment>
        <translation>Tentative de synchronisation...</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <extracomment>251 msi_button_repair</extracomment>
        <translation>&amp;Réparer</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <extracomment>252 err_full_short</extracomment>
        <translation>Espace insuffisant</translation>
    </message>
    <message>
        <source>Almost done</source>
        <extracomment>253 quick_mode_finish_page_title</extracomment>
        <translation>Presque terminé</translation>
    </message>
    <message>
        <source>Failed to update Larkmoor database. Please restart or reinstall Larkmoor Drive to resume syncing.</source>
        <extracomment>254 upgrade_failed</extracomment>
        <translation>Échec de la mise à jour de la base de données Larkmoor. Redémarrez ou réinstallez Larkmoor Drive pour reprendre la synchronisation.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <extracomment>255 msi_button_print</extracomment>
        <translation>I&amp;mprimer</translation>
    </message>
    <message>
        <source>%1 file(s) updated</source>
        <extracomment>257 files_update</extracomment>
        <translation>%1 fichier(s) mis à jour</translation>
    </message>
    <message>
        <source>Edit Excluded Files</source>
        <extracomment>258 black_list_btn</extracomment>
        <translation>Modifier les fichiers exclus</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <extracomment>259 wednesday</extracomment>
        <translation>mercredi</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Please free up some space to resume syncing.</source>
        <extracomment>260 status_desc_localdisk_full, 427 msg_localdiskfull</extracomment>
        <translation>L&apos;espace libre sur cet ordinateur est insuffisant. Libérez de l&apos;espace pour reprendre la synchronisation.</translation>
    </message>
    <message>
        <source>Sync</source>
        <extracomment>261 manage_sync_tab_name</extracomment>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>263 session_pause_btn, 364 tray_pause</extracomment>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>The icons on your files and folders show whether they are up to date, syncing or not synced.</source>
        <extracomment>264 tutorial_second_desc</extracomment>
        <translation>Les icônes affichées sur vos fichiers et dossiers indiquent s&apos;ils sont à jour, en cours de synchronisation ou non synchronisés.</translation>
    </message>
    <message>
        <source>Easy connection</source>
        <extracomment>265 conn_mode_ez</extracomment>
        <translation>Connexion facile</translation>
    </message>
    <message>
        <source>Link again</source>
        <extracomment>266 tray_relink</extracomment>
        <translation>Associer de nouveau</translation>
    </message>
    <message>
        <source>Set Up Larkmoor Drive</source>
        <extracomment>267 wizard_welcome_title</extracomment>
        <translation>Configurer Larkmoor Drive</translation>
    </message>
    <message>
        <source>First page</source>
        <extracomment>268 first_page</extracomment>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Trust and Continue</source>
        <extracomment>270 btn_ssl_continue</extracomment>
        <translation>Faire confiance et continuer</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that you want to sync.</source>
        <extracomment>272 msg_seldir_description</extracomment>
        <translation>Choisissez le dossier de cet ordinateur à synchroniser.</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <extracomment>274 context_menu_resume_folder</extracomment>
        <translation>Synchroniser ce dossier</translation>
    </message>
    <message>
        <source>You can also right-click a file to browse its previous versions.</source>
        <extracomment>275 tutorial_third_desc_2</extracomment>
        <translation>Vous pouvez également cliquer avec le bouton droit sur un fichier pour parcourir ses versions précédentes.</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder. Please choose another one.</source>
        <extracomment>278 msg_folder_mount_point</extracomment>
        <translation>Un point de montage ne peut pas être utilisé comme dossier de synchronisation. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <extracomment>279 msg_share_bubble_suffix</extracomment>
        <translation>a été partagé avec vous.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>280 msg_enabled</extracomment>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Sync these folders</source>
        <extracomment>281 context_menu_resume_folders</extracomment>
        <translation>Synchroniser ces dossiers</translation>
    </message>
    <message>
        <source>Got It</source>
        <extracomment>282 got_it</extracomment>
        <translation>J&apos;ai compris</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <extracomment>283 msi_maintenance_dlg_remove_tooltip</extracomment>
        <translation>Supprimer l&apos;installation</translation>
    </message>
    <message>
        <source>Right-click a file and choose Get link to share it with others.</source>
        <extracomment>284 tutorial_third_desc</extracomment>
        <translation>Pour partager un fichier avec d&apos;autres personnes, cliquez dessus avec le bouton droit, puis choisissez Obtenir le lien.</translation>
    </message>
    <message>
        <source>Continue</source>
        <extracomment>286 btn_continue</extracomment>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <extracomment>287 err_otp_invalid</extracomment>
        <translation>Le code de vérification est incorrect. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, Repair or Remove [ProductName]</source>
        <extracomment>288 msi_maintenance_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Modifier, réparer ou supprimer [ProductName]</translation>
    </message>
    <message>
        <source>This computer is now linked to %1.</source>
        <extracomment>289 wizard_finish_pairing_desc</extracomment>
        <translation>Cet ordinateur est maintenant associé à %1.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are being synced.</source>
        <extracomment>290 quick_mode_end_msg</extracomment>
        <translation>La configuration est terminée. Vos fichiers sont en cours de synchronisation.</translation>
    </message>
    <message>
        <source>Show Larkmoor Drive in the context menu</source>
        <extracomment>291 manage_option_enable_context_menu</extracomment>
        <translation>Afficher Larkmoor Drive dans le menu contextuel</translation>
    </message>
    <message>
        <source>File deleted:</source>
        <extracomment>293 del</extracomment>
        <translation>Fichier supprimé&#xa0;:</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Please check the address and port and try again.</source>
        <extracomment>294 err_proto</extracomment>
        <translation>Le NAS a envoyé une réponse inattendue. Vérifiez l&apos;adresse et le port, puis réessayez.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <extracomment>295 btn_start_now</extracomment>
        <translation>Démarrer maintenant</translation>
    </message>
    <message>
        <source>A secure connection to %1 could not be established.</source>
        <extracomment>296 msg_ssl_error</extracomment>
        <translation>Impossible d&apos;établir une connexion sécurisée avec %1.</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>298 msi_maintenance_dlg_repair_label</extracomment>
        <translation>Réparer</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>299 label_downloading</extracomment>
        <translation>Téléchargement en cours</translation>
    </message>
    <message>
        <source>The NAS is indexing this folder. Please try again later.</source>
        <extracomment>300 tooltip_folder_indexing</extracomment>
        <translation>Le NAS indexe actuellement ce dossier. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>301 manage_proxy_label_password, 409 title_pwd</extracomment>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed. Do you want to trust the new certificate?</source>
        <extracomment>302 msg_ssl_change</extracomment>
        <translation>Le certificat SSL de %1 a changé. Voulez-vous faire confiance au nouveau certificat&#xa0;?</translation>
    </message>
    <message>
        <source>Do not sync files larger than %1 MB</source>
        <extracomment>303 file_max_size_limit</extracomment>
        <translation>Ne pas synchroniser les fichiers de plus de %1 Mo</translation>
    </message>
    <message>
        <source>All events</source>
        <extracomment>304 history_all_event</extracomment>
        <translation>Tous les événements</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <extracomment>305 tray_syncing_file_cnt</extracomment>
        <translation>Traitement de %1 fichier(s)...</translation>
    </message>
    <message>
        <source>Your account requires 2-step verification. Please set it up on the NAS first.</source>
        <extracomment>306 err_otp_enforced</extracomment>
        <translation>Votre compte requiert la vérification en deux étapes. Configurez-la d&apos;abord sur le NAS.</translation>
    </message>
    <message>
        <source>Choose Which Folders to Sync</source>
        <extracomment>307 selective_sync_folder_title</extracomment>
        <translation>Choisir les dossiers à synchroniser</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; is complete.</source>
        <extracomment>309 msg_download_done</extracomment>
        <translation>Le téléchargement de «&#xa0;%1&#xa0;» est terminé.</translation>
    </message>
    <message>
        <source>This computer is already linked to %1. Each connection to the same NAS needs a seperate sync folder.</source>
        <extracomment>310 wizard_setup_repeat_warning</extracomment>
        <translation>Cet ordinateur est déjà associé à %1. Chaque connexion au même NAS nécessite un dossier de synchronisation distinct.</translation>
    </message>
    <message>
        <source>Remove [ProductName] from this computer.</source>
        <extracomment>311 msi_maintenance_dlg_remove_text</extracomment>
        <translation>Supprimer [ProductName] de cet ordinateur.</translation>
    </message>
    <message>
        <source>Changes to files on a network drive cannot be detected immediately. Syncing may be delayed.</source>
        <extracomment>312 msg_network_drive_watch</extracomment>
        <translation>Les modifications apportées aux fichiers d&apos;un lecteur réseau ne peuvent pas être détectées immédiatement. La synchronisation peut être retardée.</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>313 manage_option_language</extracomment>
        <translation>Langue</translation>
    </message>
    <message>
        <source>File added: </source>
        <extracomment>314 add</extracomment>
        <translation>Fichier ajouté&#xa0;: </translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <extracomment>315 file_max_size_label</extracomment>
        <translation>Taille maximale des fichiers&#xa0;:</translation>
    </message>
    <message>
        <source>No data </source>
        <extracomment>316 history_no_data</extracomment>
        <translation>Aucune donnée </translation>
    </message>
    <message>
        <source>Shared folder</source>
        <extracomment>317 manage_share_name</extracomment>
        <translation>Dossier partagé</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <extracomment>318 title_changefolder</extracomment>
        <translation>Changer de dossier de synchronisation</translation>
    </message>
    <message>
        <source>Monday</source>
        <extracomment>319 monday</extracomment>
        <translation>lundi</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <extracomment>320 main_sync_task</extracomment>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>Encrypt the data transfer with SSL</source>
        <extracomment>321 manage_option_enable_ssl</extracomment>
        <translation>Chiffrer le transfert des données avec SSL</translation>
    </message>
    <message>
        <source>Unable to download &quot;%1&quot;.</source>
        <extracomment>322 msg_download_fail</extracomment>
        <translation>Impossible de télécharger «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Auto Upgrade</source>
        <extracomment>323 title_upgrade</extracomment>
        <translation>Mise à niveau automatique</translation>
    </message>
    <message>
        <source>Add a Sync Folder</source>
        <extracomment>324 wizard_new_sync_folder_title</extracomment>
        <translation>Ajouter un dossier de synchronisation</translation>
    </message>
    <message>
        <source>January</source>
        <extracomment>325 month_jan</extracomment>
        <translation>janvier</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <extracomment>326 err_inval</extracomment>
        <translation>Une valeur non valide a été saisie. Vérifiez votre saisie, puis réessayez.</translation>
    </message>
    <message>
        <source>Please wait while Larkmoor Drive connects to your NAS...</source>
        <extracomment>327 wizard_welcome_mask_desc</extracomment>
        <translation>Veuillez patienter pendant que Larkmoor Drive se connecte à votre NAS...</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <extracomment>328 error_zero_version</extracomment>
        <translation>Ce fichier n&apos;a aucune version précédente.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Please choose a folder that you can write to.</source>
        <extracomment>329 msg_folder_readonly</extracomment>
        <translation>Le dossier «&#xa0;%1&#xa0;» est en lecture seule. Choisissez un dossier accessible en écriture.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated. You can let the Setup Wizard close them, or restart your computer later.</source>
        <extracomment>330 msi_filesinuse_dlg_text2</extracomment>
        <translation>Les applications suivantes utilisent des fichiers qui doivent être mis à jour. Vous pouvez laisser l&apos;assistant d&apos;installation les fermer, ou vous pouvez redémarrer votre ordinateur ultérieurement.</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>331 language_default</extracomment>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the NAS.</source>
        <extracomment>332 err_share_not_mounted</extracomment>
        <translation>Le dossier partagé «&#xa0;%1&#xa0;» n&apos;est pas monté sur le NAS.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <extracomment>333 msi_welcome_dlg_description</extracomment>
        <translation>Cet assistant va installer [ProductName] sur votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter l&apos;assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>Disconnected from the NAS. Trying to reconnect...</source>
        <extracomment>334 err_disconn</extracomment>
        <translation>Déconnecté du NAS. Tentative de reconnexion...</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>335 management_proxy_apply_btn</extracomment>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <extracomment>336 tray_setinfo</extracomment>
        <translation>Paramètres de connexion</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <extracomment>337 history_last_week</extracomment>
        <translation>7 derniers jours</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <extracomment>339 context_menu_version_browse</extracomment>
        <translation>Parcourir les versions précédentes</translation>
    </message>
    <message>
        <source>Set Up Sync Folders</source>
        <extracomment>340 wizard_set_sync_folder</extracomment>
        <translation>Configurer les dossiers de synchronisation</translation>
    </message>
    <message>
        <source>You do not have permission to create sharing links.</source>
        <extracomment>341 desc_cannot_share_link</extracomment>
        <translation>Vous n&apos;êtes pas autorisé à créer des liens de partage.</translation>
    </message>
    <message>
        <source>Learn More</source>
        <extracomment>342 more_tutorial</extracomment>
        <translation>En savoir plus</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated. Please close them and click Retry to continue, or click Exit to end the installation.</source>
        <extracomment>343 msi_filesinuse_dlg_text</extracomment>
        <translation>Les applications suivantes utilisent des fichiers qui doivent être mis à jour. Fermez-les et cliquez sur Réessayer pour continuer, ou cliquez sur Quitter pour mettre fin à l&apos;installation.</translation>
    </message>
    <message>
        <source>November</source>
        <extracomment>346 month_nov</extracomment>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Reading the connection mode...</source>
        <extracomment>347 conn_mode_reading</extracomment>
        <translation>Lecture du mode de connexion...</translation>
    </message>
    <message>
        <source>Thursday</source>
        <extracomment>350 thursday</extracomment>
        <translation>jeudi</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <extracomment>351 open_contain_folder</extracomment>
        <translation>Ouvrir le dossier contenant le fichier</translation>
    </message>
    <message>
        <source>Larkmoor Drive is running.</source>
        <extracomment>352 msg_running</extracomment>
        <translation>Larkmoor Drive est en cours d&apos;exécution.</translation>
    </message>
    <message>
        <source>Stay in Control</source>
        <extracomment>353 tutorial_fourth_title</extracomment>
        <translation>Gardez le contrôle</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <extracomment>354 context_menu_filter_folder</extracomment>
        <translation>Ne pas synchroniser ce dossier</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <extracomment>355 sharing_apply_and_copy_button</extracomment>
        <translation>Appliquer et copier le lien</translation>
    </message>
    <message>
        <source>August</source>
        <extracomment>357 month_aug</extracomment>
        <translation>août</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <extracomment>358 msg_catchevent</extracomment>
        <translation>Surveillance des modifications de fichiers...</translation>
    </message>
    <message>
        <source>Merge</source>
        <extracomment>359 btn_merge</extracomment>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>File type</source>
        <extracomment>360 history_file_type</extracomment>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Re&amp;try</source>
        <extracomment>361 msi_button_retry</extracomment>
        <translation>Ré&amp;essayer</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>362 title_ip</extracomment>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>A sync folder with this name already exists. Please choose another name.</source>
        <extracomment>363 wizard_share_name_duplicate_warning</extracomment>
        <translation>Un dossier de synchronisation portant ce nom existe déjà. Veuillez choisir un autre nom.</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>365 btn_back</extracomment>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>366 tray_management_page, 374 msg_summary, 482 network_management_page_btn</extracomment>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already part of another sync folder.</source>
        <extracomment>367 err_share_folder_conflict</extracomment>
        <translation>Le dossier «&#xa0;%1&#xa0;» fait déjà partie d&apos;un autre dossier de synchronisation.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <extracomment>368 sunday</extracomment>
        <translation>dimanche</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <extracomment>369 tuesday</extracomment>
        <translation>mardi</translation>
    </message>
    <message>
        <source>Put Your Files Here</source>
        <extracomment>370 tutorial_first_title</extracomment>
        <translation>Placez vos fichiers ici</translation>
    </message>
    <message>
        <source>Larkmoor Drive is initializing...</source>
        <extracomment>371 desc_lkmr_env_preparing</extracomment>
        <translation>Larkmoor Drive est en cours d&apos;initialisation...</translation>
    </message>
    <message>
        <source>The connection is not secure because the SSL certificate of the NAS could not be verified.</source>
        <extracomment>372 status_desc_ssl_verify_fail</extracomment>
        <translation>La connexion n&apos;est pas sécurisée, car le certificat SSL du NAS n&apos;a pas pu être vérifié.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Please contact the NAS administrator.</source>
        <extracomment>373 wizard_user_disable_sync_folder_warning</extracomment>
        <translation>Votre compte a été désactivé. Contactez l&apos;administrateur du NAS.</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <extracomment>375 manage_share_loading</extracomment>
        <translation>Chargement des dossiers partagés...</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <extracomment>376 manage_option_enable_desktop_notify</extracomment>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>377 history_type</extracomment>
        <translation>Type</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud service. Syncing it twice may cause file conflicts.</source>
        <extracomment>378 conflict_dropbox</extracomment>
        <translation>Ce dossier est déjà synchronisé par un autre service cloud. Une double synchronisation peut entraîner des conflits de fichiers.</translation>
    </message>
    <message>
        <source>Port</source>
        <extracomment>379 manage_proxy_server_port</extracomment>
        <translation>Port</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>380 tray_about</extracomment>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Unable to sign in. Please check your username and password.</source>
        <extracomment>381 err_auth</extracomment>
        <translation>Échec de la connexion à votre compte. Vérifiez votre nom d&apos;utilisateur et votre mot de passe.</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>382 history_to</extracomment>
        <translation>Au</translation>
    </message>
    <message>
        <source>Choose a Sync Mode</source>
        <extracomment>383 selective_sync_mode_title</extracomment>
        <translation>Choisir un mode de synchronisation</translation>
    </message>
    <message>
        <source>Custom validity period</source>
        <extracomment>384 sharing_customize_duration</extracomment>
        <translation>Durée de validité personnalisée</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <extracomment>385 msg_download_downloading</extracomment>
        <translation>Téléchargement de «&#xa0;%1&#xa0;»...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <extracomment>386 status_desc_syncing</extracomment>
        <translation>Synchronisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>387 today</extracomment>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>See the Status at a Glance</source>
        <extracomment>388 tutorial_second_title</extracomment>
        <translation>Vérifiez l&apos;état d&apos;un coup d&apos;œil</translation>
    </message>
    <message>
        <source>Proxy</source>
        <extracomment>389 manage_proxy_tab_name</extracomment>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>390 manage_option_title</extracomment>
        <translation>Options</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved, renamed or deleted.</source>
        <extracomment>391 err_local_sync_folder_miss</extracomment>
        <translation>Le dossier de synchronisation local «&#xa0;%1&#xa0;» est introuvable. Il a peut-être été déplacé, renommé ou supprimé.</translation>
    </message>
    <message>
        <source>Unable to remove the sync folder &quot;%1&quot;.</source>
        <extracomment>392 err_shareitem_delete</extracomment>
        <translation>Impossible de supprimer le dossier de synchronisation «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Initializing</source>
        <extracomment>393 label_preparing</extracomment>
        <translation>Initialisation</translation>
    </message>
    <message>
        <source>Link a New NAS</source>
        <extracomment>394 link_new_nas</extracomment>
        <translation>Associer un nouveau NAS</translation>
    </message>
    <message>
        <source>{\\DlgFont8}I do not accept the terms of the License Agreement</source>
        <extracomment>395 msi_eula_dlg_reject</extracomment>
        <translation>{\\DlgFont8}Je n&apos;accepte pas les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Your IP address has been blocked by the NAS. Please contact the NAS administrator.</source>
        <extracomment>396 err_ip_not_allowed</extracomment>
        <translation>Votre adresse IP a été bloquée par le NAS. Contactez l&apos;administrateur du NAS.</translation>
    </message>
    <message>
        <source>Last page</source>
        <extracomment>397 last_page</extracomment>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>398 col_file_status, 498 manage_share_status</extracomment>
        <translation>État</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected.</source>
        <extracomment>399 msi_maintenance_dlg_change_text_disabled</extracomment>
        <translation>[ProductName] ne comporte aucune fonctionnalité sélectionnable.</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <extracomment>400 msi_button_yes</extracomment>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>Standby</source>
        <extracomment>401 title_standby</extracomment>
        <translation>En veille</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>402 btn_done</extracomment>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Create a Larkmoor Drive folder</source>
        <extracomment>403 wizard_create_larkmoor_folder</extracomment>
        <translation>Créer un dossier Larkmoor Drive</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is now available. Click here to sync it.</source>
        <extracomment>404 notify_new_share</extracomment>
        <translation>Le dossier partagé «&#xa0;%1&#xa0;» est maintenant disponible. Cliquez ici pour le synchroniser.</translation>
    </message>
    <message>
        <source>Click the tray icon to pause syncing, view the sync history or change your settings.</source>
        <extracomment>405 tutorial_fourth_desc</extracomment>
        <translation>Cliquez sur l&apos;icône de la zone de notification pour suspendre la synchronisation, consulter l&apos;historique de synchronisation ou modifier vos paramètres.</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <extracomment>406 msg_connectsucc</extracomment>
        <translation>Connexion établie.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <extracomment>407 msi_filesinuse_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Fichiers en cours d&apos;utilisation</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <extracomment>408 desc_cannot_list_version</extracomment>
        <translation>Impossible de répertorier les versions de ce fichier.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <extracomment>410 tray_data_checking</extracomment>
        <translation>Vérification des données...</translation>
    </message>
    <message>
        <source>A green check mark means that a file has been synced.</source>
        <extracomment>411 tutorial_second_desc_2</extracomment>
        <translation>Une coche verte indique qu&apos;un fichier a été synchronisé.</translation>
    </message>
    <message>
        <source>Sync has stopped</source>
        <extracomment>412 notify_abnormal_short</extracomment>
        <translation>La synchronisation s&apos;est arrêtée</translation>
    </message>
    <message>
        <source>Status information</source>
        <extracomment>413 title_status_info</extracomment>
        <translation>Informations d&apos;état</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Please free up some space or contact the NAS administrator.</source>
        <extracomment>414 wizard_diskfull_sync_folder_warning, 426 status_desc_diskfull</extracomment>
        <translation>L&apos;espace libre sur le NAS est insuffisant. Libérez de l&apos;espace ou contactez l&apos;administrateur du NAS.</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <extracomment>416 msi_button_back</extracomment>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>Up to date</source>
        <extracomment>417 status_desc_uptodate, 457 tray_uptodate</extracomment>
        <translation>À jour</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <extracomment>418 msg_finish</extracomment>
        <translation>Configuration terminée</translation>
    </message>
    <message>
        <source>Larkmoor Drive keeps the files on this computer in sync with your NAS. Please enter your connection information to get started.</source>
        <extracomment>419 wizard_welcome_desc</extracomment>
        <translation>Larkmoor Drive maintient les fichiers de cet ordinateur synchronisés avec votre NAS. Saisissez vos informations de connexion pour commencer.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <extracomment>420 msi_maintenance_dlg_repair_tooltip</extracomment>
        <translation>Réparer l&apos;installation</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <extracomment>421 msi_filesinuse_dlg_description</extracomment>
        <translation>Certains fichiers devant être mis à jour sont en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <extracomment>422 wizard_client_upgrade, 428 tray_upgrade</extracomment>
        <translation>Mettre à niveau</translation>
    </message>
    <message>
        <source>Repair missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <extracomment>423 msi_maintenance_dlg_repair_text</extracomment>
        <translation>Réparer les fichiers, les raccourcis et les entrées de Registre manquants ou endommagés de [ProductName].</translation>
    </message>
    <message>
        <source>Show status icons on files and folders that are not synced</source>
        <extracomment>424 manage_option_show_filtered_icons</extracomment>
        <translation>Afficher les icônes d&apos;état sur les fichiers et les dossiers non synchronisés</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <extracomment>429 msg_unlinking</extracomment>
        <translation>Dissociation en cours...</translation>
    </message>
    <message>
        <source>Choose what you want to do with the installation.</source>
        <extracomment>430 msi_maintenance_dlg_description</extracomment>
        <translation>Choisissez l&apos;opération à effectuer sur l&apos;installation.</translation>
    </message>
    <message>
        <source>December</source>
        <extracomment>431 month_dec</extracomment>
        <translation>décembre</translation>
    </message>
    <message>
        <source>This Bridgeway ID does not exist. Please check the ID and try again.</source>
        <extracomment>432 err_autoconn_invalidid</extracomment>
        <translation>Cet ID Bridgeway n&apos;existe pas. Vérifiez l&apos;ID, puis réessayez.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match your permissions. Please change it in the settings.</source>
        <extracomment>433 sync_direction_mismatch</extracomment>
        <translation>Le sens de synchronisation de ce dossier ne correspond pas à vos autorisations. Modifiez-le dans les paramètres.</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <extracomment>434 main_settings</extracomment>
        <translation>Paramètres globaux</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <extracomment>435 tray_updatedfile</extracomment>
        <translation>Fichiers mis à jour récemment</translation>
    </message>
    <message>
        <source>The NAS has been replaced.</source>
        <extracomment>436 tray_hb_change</extracomment>
        <translation>Le NAS a été remplacé.</translation>
    </message>
    <message>
        <source>Add a sync folder on another NAS</source>
        <extracomment>437 wizard_sync_folder_new_nas</extracomment>
        <translation>Ajouter un dossier de synchronisation sur un autre NAS</translation>
    </message>
    <message>
        <source>Larkmoor Drive</source>
        <extracomment>438 app_name</extracomment>
        <translation>Larkmoor Drive</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <extracomment>439 err_init_failed</extracomment>
        <translation>Échec de l&apos;initialisation.</translation>
    </message>
    <message>
        <source>The volume on the NAS is not mounted. Please contact the NAS administrator.</source>
        <extracomment>440 err_remote_not_mounted</extracomment>
        <translation>Le volume du NAS n&apos;est pas monté. Contactez l&apos;administrateur du NAS.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <extracomment>442 err_proxy_ipport_empty</extracomment>
        <translation>Saisissez l&apos;adresse et le port du serveur proxy.</translation>
    </message>
    <message>
        <source>September</source>
        <extracomment>443 month_sep</extracomment>
        <translation>septembre</translation>
    </message>
    <message>
        <source>No options available</source>
        <extracomment>444 context_menu_no_option_available</extracomment>
        <translation>Aucune option disponible</translation>
    </message>
    <message>
        <source>Almost Done!</source>
        <extracomment>446 wizard_set_sync_folder_title</extracomment>
        <translation>Presque terminé&#xa0;!</translation>
    </message>
    <message>
        <source>Copy to %1</source>
        <extracomment>447 context_menu_sendto_prefix</extracomment>
        <translation>Copier vers %1</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <extracomment>448 hb_overview</extracomment>
        <translation>Vue d&apos;ensemble du NAS</translation>
    </message>
    <message>
        <source>No NAS yet? Visit our website to learn more.</source>
        <extracomment>450 wizard_welcome_footer_info</extracomment>
        <translation>Vous n&apos;avez pas encore de NAS&#xa0;? Visitez notre site Web pour en savoir plus.</translation>
    </message>
    <message>
        <source>July</source>
        <extracomment>451 month_jul</extracomment>
        <translation>juillet</translation>
    </message>
    <message>
        <source>Unable to create the folder &quot;%1&quot; on this computer.</source>
        <extracomment>452 wizard_create_local_folder_failed</extracomment>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;» sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Service disabled</source>
        <extracomment>453 err_orlaqdisable_short</extracomment>
        <translation>Service désactivé</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <extracomment>454 advanced_settings</extracomment>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <extracomment>455 msi_button_install</extracomment>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>File edited:</source>
        <extracomment>458 edit</extracomment>
        <translation>Fichier modifié&#xa0;:</translation>
    </message>
    <message>
        <source>Start Larkmoor Drive when you sign in to your computer</source>
        <extracomment>459 manage_option_enable_startup</extracomment>
        <translation>Démarrer Larkmoor Drive à l&apos;ouverture de session sur l&apos;ordinateur</translation>
    </message>
    <message>
        <source>Local network</source>
        <extracomment>460 conn_mode_lan</extracomment>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Share with Others</source>
        <extracomment>462 tutorial_third_title</extracomment>
        <translation>Partagez avec d&apos;autres personnes</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <extracomment>463 msi_maintenance_dlg_remove_label</extracomment>
        <translation>Désinstaller</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setting Up [ProductName]</source>
        <extracomment>465 msi_progress_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Installation de [ProductName]</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account information.</source>
        <extracomment>466 wizard_connection_setting_desc</extracomment>
        <translation>Saisissez l&apos;adresse de votre NAS et les informations de votre compte.</translation>
    </message>
    <message>
        <source>{\DlgFont8}I accept the terms of the License Agreement</source>
        <extracomment>467 msi_eula_dlg_accept</extracomment>
        <translation>{\DlgFont8}J&apos;accepte les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <extracomment>468 err_share_nonexist_short</extracomment>
        <translation>Dossier partagé introuvable</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>469 history_yesterday</extracomment>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Sharing links cannot be used because Bridgeway is not enabled on the NAS. Please contact the NAS administrator.</source>
        <extracomment>470 err_bridgeway_file_sharing</extracomment>
        <translation>Les liens de partage ne peuvent pas être utilisés, car Bridgeway n&apos;est pas activé sur le NAS. Contactez l&apos;administrateur du NAS.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Syncing it may cause data conflicts.</source>
        <extracomment>471 wizard_conflict_backup_warning</extracomment>
        <translation>Ce dossier est utilisé par une tâche de sauvegarde. Sa synchronisation peut entraîner des conflits de données.</translation>
    </message>
    <message>
        <source>Change</source>
        <extracomment>472 msi_maintenance_dlg_change_label</extracomment>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <extracomment>473 wizard_setup_quick_mode_title</extracomment>
        <translation>Configuration rapide</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <extracomment>474 prev_x_pages</extracomment>
        <translation>%1 pages précédentes</translation>
    </message>
    <message>
        <source>%1 cannot be synced because it is in use, or acccess is denied.</source>
        <extracomment>475 label_locked_file</extracomment>
        <translation>%1 ne peut pas être synchronisé, car ce fichier est en cours d&apos;utilisation ou l&apos;accès est refusé.</translation>
    </message>
    <message>
        <source>Sync your files across all your computers</source>
        <extracomment>476 msg_sub_slogan</extracomment>
        <translation>Synchronisez vos fichiers sur tous vos ordinateurs</translation>
    </message>
    <message>
        <source>If a file has been changed both on this computer and on the NAS:</source>
        <extracomment>477 conflict_policy_desc</extracomment>
        <translation>Si un fichier a été modifié à la fois sur cet ordinateur et sur le NAS&#xa0;:</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <extracomment>478 msg_upgrading</extracomment>
        <translation>Mise à niveau...</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <extracomment>479 status_desc_abnormal_short</extracomment>
        <translation>Attention requise</translation>
    </message>
    <message>
        <source>Date range</source>
        <extracomment>480 history_date_range</extracomment>
        <translation>Plage de dates</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>481 history_delete</extracomment>
        <translation>Suppression</translation>
    </message>
    <message>
        <source>Mount points are not supported</source>
        <extracomment>483 err_share_mountpt_short</extracomment>
        <translation>Points de montage non pris en charge</translation>
    </message>
    <message>
        <source>Copyright (c) %1 Larkmoor. All rights reserved.</source>
        <extracomment>484 msg_about</extracomment>
        <translation>Copyright (c) %1 Larkmoor. Tous droits réservés.</translation>
    </message>
    <message>
        <source>NAS</source>
        <extracomment>485 title_chart_tray</extracomment>
        <translation>NAS</translation>
    </message>
    <message>
        <source>Open file</source>
        <extracomment>486 open_file</extracomment>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>Always keep the version on the NAS</source>
        <extracomment>487 conflict_policy_overwrite_client</extracomment>
        <translation>Toujours conserver la version du NAS</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <extracomment>489 title_icon_double_clicked</extracomment>
        <translation>Lors d&apos;un double-clic sur l&apos;icône de la zone de notification</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>490 btn_next</extracomment>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>The sync database is damaged. Please restart or reinstall Larkmoor Drive.</source>
        <extracomment>491 err_database</extracomment>
        <translation>La base de données de synchronisation est endommagée. Redémarrez ou réinstallez Larkmoor Drive.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <extracomment>493 history_last_month</extracomment>
        <translation>30 derniers jours</translation>
    </message>
    <message>
        <source>Your quota on the NAS is not large enough to upload &quot;%1&quot;.</source>
        <extracomment>494 msg_quotafull</extracomment>
        <translation>Votre quota sur le NAS est insuffisant pour envoyer «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <extracomment>495 time_minute_ago</extracomment>
        <translation>Il y a %1 minute(s)</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <extracomment>497 msg_progress</extracomment>
        <translation>Étape %1 sur %2</translation>
    </message>
    <message>
        <source>The shared folder does not exist or has been removed. Please choose another one.</source>
        <extracomment>499 wizard_share_nonexist_sync_folder_warning</extracomment>
        <translation>Le dossier partagé n&apos;existe pas ou a été supprimé. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>This folder contains, or lies inside, another sync folder. Please choose another one.</source>
        <extracomment>500 wizard_conflict_sync_folder_warning</extracomment>
        <translation>Ce dossier contient un autre dossier de synchronisation ou est lui-même situé dans un dossier de synchronisation. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>No Thanks</source>
        <extracomment>501 no_need</extracomment>
        <translation>Non merci</translation>
    </message>
    <message>
        <source>Choose a Sync Direction</source>
        <extracomment>502 selective_sync_direction_title</extracomment>
        <translation>Choisir un sens de synchronisation</translation>
    </message>
    <message>
        <source>Internet</source>
        <extracomment>503 conn_mode_wan</extracomment>
        <translation>Internet</translation>
    </message>
    <message>
        <source>You have reached the maximum number of sync folders.</source>
        <extracomment>504 err_share_limit</extracomment>
        <translation>Vous avez atteint le nombre maximal de dossiers de synchronisation.</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>506 history_reset</extracomment>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <extracomment>507 err_max_tries</extracomment>
        <translation>Trop de tentatives infructueuses. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from %1?</source>
        <extracomment>508 msg_confirm_unlink</extracomment>
        <translation>Voulez-vous vraiment dissocier cet ordinateur de %1&#xa0;?</translation>
    </message>
    <message>
        <source>Domain name, IP address or Bridgeway ID</source>
        <extracomment>509 title_ip_detail</extracomment>
        <translation>Nom de domaine, adresse IP ou ID Bridgeway</translation>
    </message>
    <message>
        <source>Sync extended attributes and permissions</source>
        <extracomment>511 selective_enable_entire_attribute_check</extracomment>
        <translation>Synchroniser les attributs étendus et les autorisations</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <extracomment>512 err_user_name_empty</extracomment>
        <translation>Saisissez votre nom d&apos;utilisateur.</translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>513 manage_share_tab_name</extracomment>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>This computer</source>
        <extracomment>514 title_chart_local</extracomment>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>Sharing</source>
        <extracomment>515 title_bubble_sharing</extracomment>
        <translation>Partage</translation>
    </message>
    <message>
        <source>Connect through Bridgeway</source>
        <extracomment>517 use_bridgeway</extracomment>
        <translation>Se connecter via Bridgeway</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications (you will need to restart your computer)</source>
        <extracomment>518 msi_filesinuse_dlg_closenone</extracomment>
        <translation>&amp;Ne pas fermer les applications (un redémarrage de l&apos;ordinateur sera nécessaire)</translation>
    </message>
    <message>
        <source>Larkmoor Drive is ready.</source>
        <extracomment>519 desc_lkmr_env_preparation_done</extracomment>
        <translation>Larkmoor Drive est prêt.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <extracomment>520 msi_button_no</extracomment>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <extracomment>522 block_file_table_title</extracomment>
        <translation>Fichiers exclus</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>523 history_file</extracomment>
        <translation>Fichier</translation>
    </message>
</context>
</TS>
