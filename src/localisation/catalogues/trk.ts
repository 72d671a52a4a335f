<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Searching for NAS devices on your local network...</source>
        <extracomment>0 local_hb_search</extracomment>
        <translation>Yerel ağınızda NAS cihazları aranıyor...</translation>
    </message>
    <message>
        <source>April</source>
        <extracomment>1 month_apr</extracomment>
        <translation>Nisan</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be uploaded to the NAS.</source>
        <extracomment>2 read_only_tooltip</extracomment>
        <translation>Bu klasöre yalnızca okuma erişiminiz var. Bu bilgisayarda yapılan değişiklikler NAS cihazına yüklenmeyecek.</translation>
    </message>
    <message>
        <source>Choose the folders, sync direction and file filters yourself (recommended for experienced users)&#x200b;.</source>
        <extracomment>3 wizard_setup_advan_mode_desc</extracomment>
        <translation>Klasörleri, eşitleme yönünü ve dosya filtrelerini kendiniz seçin (deneyimli kullanıcılar için önerilir).</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>4 history_from</extracomment>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Do you want to stop the installation of [ProductName]?</source>
        <extracomment>5 msi_cancel_dlg_text</extracomment>
        <translation>[ProductName] kurulumunu durdurmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <extracomment>6 msi_welcome_dlg_title, 80 msi_readyremove_dlg_title, 99 msi_maintenance_welcome_dlg_title, 242 msi_error_dlg_title, 256 msi_userexit_dlg_title, 276 msi_fatalerror_dlg_title, 277 msi_eula_dlg_title, 345 msi_filesinuse_dlg_title, 356 msi_maintenance_dlg_title, 425 msi_exit_dlg_title, 441 msi_progress_dlg_title, 456 msi_readyrepair_dlg_title, 488 msi_ready_dlg_title, 492 msi_cancel_dlg_title</extracomment>
        <translation>[ProductName] Kurulumu</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>7 col_file_action, 505 history_action</extracomment>
        <translation>Eylem</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <extracomment>8 msi_welcome_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] Kurulum Sihirbazına Hoş Geldiniz</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <extracomment>9 msi_exit_dlg_description, 297 msi_userexit_dlg_description2, 445 msi_exit_dlg_text, 461 msi_fatalerror_dlg_description2</extracomment>
        <translation>Kurulum Sihirbazından çıkmak için Son düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Unable to reach the network. Please check your network connection and try again.</source>
        <extracomment>10 err_network</extracomment>
        <translation>Ağa ulaşılamıyor. Lütfen ağ bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <extracomment>11 one_way_sync_download, 349 one_way_download</extracomment>
        <translation>Tek yönlü indirme</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>12 btn_help</extracomment>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Sync is enabled for this folder.</source>
        <extracomment>13 share_enabled</extracomment>
        <translation>Bu klasör için eşitleme etkin.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <extracomment>14 common_forminvalid</extracomment>
        <translation>Bazı alanlarda geçersiz değerler var. Lütfen devam etmeden önce bunları düzeltin.</translation>
    </message>
    <message>
        <source>Currently syncing</source>
        <extracomment>15 tray_current_syncing</extracomment>
        <translation>Şu anda eşitleniyor</translation>
    </message>
    <message>
        <source>The Bridgeway service is temporarily unavailable. Please try again later.</source>
        <extracomment>16 err_autoconn_sys</extracomment>
        <translation>Bridgeway hizmeti geçici olarak kullanılamıyor. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <extracomment>17 conn_mode_direct</extracomment>
        <translation>Doğrudan bağlantı</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. Please check the certificate or contact the NAS administrator.</source>
        <extracomment>18 wizard_ssl_verify_fail_sync_folder_warning, 521 err_ssl_verify_fail</extracomment>
        <translation>NAS cihazının SSL sertifikası doğrulanamadı. Lütfen sertifikayı denetleyin veya NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <extracomment>19 msi_button_exit</extracomment>
        <translation>Çı&amp;k</translation>
    </message>
    <message>
        <source>Syncing of &quot;%1&quot; has stopped because of an error. Click here for details.</source>
        <extracomment>20 notify_abnormal</extracomment>
        <translation>“%1” eşitlemesi bir hata nedeniyle durdu. Ayrıntılar için buraya tıklayın.</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please try again.</source>
        <extracomment>21 msg_test_username_fail</extracomment>
        <translation>Kullanıcı adı veya parola yanlış. Lütfen yeniden deneyin.</translation>
    </message>
    <message>
        <source>This folder cannot be used as a sync folder. Please choose another one.</source>
        <extracomment>22 wizard_invalid_sync_folder_warning</extracomment>
        <translation>Bu klasör eşitleme klasörü olarak kullanılamaz. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Larkmoor Drive will keep the following folder in sync with your NAS:</source>
        <extracomment>23 quick_mode_finish_page_desc</extracomment>
        <translation>Larkmoor Drive aşağıdaki klasörü NAS cihazınızla eşitlenmiş tutacak:</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <extracomment>24 manage_proxy_chk_manual</extracomment>
        <translation>Proxy&apos;yi el ile ayarla</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <extracomment>25 err_auth_short, 238 status_desc_auth_short</extracomment>
        <translation>Kimlik doğrulama başarısız</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <extracomment>26 status_desc_version_short</extracomment>
        <translation>Desteklenmeyen sürüm</translation>
    </message>
    <message>
        <source>October</source>
        <extracomment>27 month_oct</extracomment>
        <translation>Ekim</translation>
    </message>
    <message>
        <source>Computer name</source>
        <extracomment>28 col_computer_name</extracomment>
        <translation>Bilgisayar adı</translation>
    </message>
    <message>
        <source>Saturday</source>
        <extracomment>29 saturday</extracomment>
        <translation>Cumartesi</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <extracomment>30 unlink_connection</extracomment>
        <translation>Bağlantının İlişkisini Kaldır</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <extracomment>31 manage_proxy_server_ip</extracomment>
        <translation>Proxy sunucusu adresi</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Remove [ProductName]</source>
        <extracomment>32 msi_readyremove_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont][ProductName] Kaldırılmaya Hazır</translation>
    </message>
    <message>
        <source>This wizard lets you change, repair or remove [ProductName]. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <extracomment>33 msi_maintenance_welcome_dlg_description</extracomment>
        <translation>Bu sihirbaz [ProductName] programını değiştirmenizi, onarmanızı veya kaldırmanızı sağlar. Devam etmek için İleri, Kurulum Sihirbazından çıkmak için İptal düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>34 history_upload</extracomment>
        <translation>Karşıya yükleme</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <extracomment>35 manage_proxy_chk_account</extracomment>
        <translation>Proxy sunucusu kimlik doğrulaması gerektiriyor</translation>
    </message>
    <message>
        <source>Choose a Setup Mode</source>
        <extracomment>36 wizard_setup_mode_page_title</extracomment>
        <translation>Bir Kurulum Modu Seçin</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>37 desc_inactive, 292 title_inactive</extracomment>
        <translation>Etkin değil</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Files will be downloaded to this computer, but local changes will not be uploaded.</source>
        <extracomment>38 wizard_readonly_sync_folder_warning</extracomment>
        <translation>Bu klasöre yalnızca okuma erişiminiz var. Dosyalar bu bilgisayara indirilecek ancak yerel değişiklikler karşıya yüklenmeyecek.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <extracomment>39 manage_setting_applying</extracomment>
        <translation>Ayarlar uygulanıyor...</translation>
    </message>
    <message>
        <source>Loading...</source>
        <extracomment>40 loading</extracomment>
        <translation>Yükleniyor...</translation>
    </message>
    <message>
        <source>Pause Connection</source>
        <extracomment>41 pause_connection</extracomment>
        <translation>Bağlantıyı Duraklat</translation>
    </message>
    <message>
        <source>The text cannot be longer than %1 characters.</source>
        <extracomment>42 common_maxlengthtext</extracomment>
        <translation>Metin en fazla %1 karakter olabilir.</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>43 err_short, 77 title_folder_readonly, 449 err_common</extracomment>
        <translation>Hata</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <extracomment>44 time_hour_ago</extracomment>
        <translation>%1 saat önce</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <extracomment>45 common_fieldblank</extracomment>
        <translation>Bu alan boş bırakılamaz.</translation>
    </message>
    <message>
        <source>A system error occurred while accessing this folder. Please try again later.</source>
        <extracomment>46 wizard_system_err_sync_folder_warning</extracomment>
        <translation>Bu klasöre erişilirken bir sistem hatası oluştu. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Is Complete</source>
        <extracomment>47 msi_exit_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] Kurulumu Tamamlandı</translation>
    </message>
    <message>
        <source>June</source>
        <extracomment>48 month_jun</extracomment>
        <translation>Haziran</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>49 tray_resume, 262 session_resume_btn</extracomment>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>50 msg_disabled</extracomment>
        <translation>Devre dışı</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to [ProductName] Maintenance</source>
        <extracomment>51 msi_maintenance_welcome_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] Bakım Sihirbazına Hoş Geldiniz</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>52 history_customize</extracomment>
        <translation>Özel</translation>
    </message>
    <message>
        <source>This computer is already linked to %1. Linking it to the same NAS again may cause file conflicts. Do you want to continue?</source>
        <extracomment>53 wizard_setup_repeat_warning2</extracomment>
        <translation>Bu bilgisayar zaten %1 cihazıyla ilişkilendirilmiş. Aynı NAS cihazıyla yeniden ilişkilendirmek dosya çakışmalarına yol açabilir. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>54 btn_shareitem_delete</extracomment>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>55 version</extracomment>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <extracomment>56 btn_choseother</extracomment>
        <translation>Başka Bir Klasör Seç</translation>
    </message>
    <message>
        <source>Please review the settings below, and then click Finish to start syncing.</source>
        <extracomment>57 msg_info_description</extracomment>
        <translation>Lütfen aşağıdaki ayarları gözden geçirin ve eşitlemeyi başlatmak için Son düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <extracomment>58 conflict_policy_compare_mtime</extracomment>
        <translation>En son değiştirilen sürümü koru</translation>
    </message>
    <message>
        <source>Date created</source>
        <extracomment>59 col_create_time</extracomment>
        <translation>Oluşturma tarihi</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <extracomment>60 time_day_ago</extracomment>
        <translation>%1 gün önce</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <extracomment>61 err_invalid_port_number</extracomment>
        <translation>Bağlantı noktası numarası 1 ile 65535 arasında olmalıdır.</translation>
    </message>
    <message>
        <source>Sync History</source>
        <extracomment>62 history_page_title</extracomment>
        <translation>Eşitleme Geçmişi</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <extracomment>63 btn_edit_connection</extracomment>
        <translation>Bağlantıyı Düzenle</translation>
    </message>
    <message>
        <source>Friday</source>
        <extracomment>64 friday</extracomment>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>Destination</source>
        <extracomment>65 col_file_destination</extracomment>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Please confirm the new certificate to resume syncing.</source>
        <extracomment>66 err_ssl_change, 348 wizard_ssl_change_sync_folder_warning</extracomment>
        <translation>NAS cihazının SSL sertifikası değişti. Eşitlemeyi sürdürmek için lütfen yeni sertifikayı onaylayın.</translation>
    </message>
    <message>
        <source>The folders that you have deselected will be permantely removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <extracomment>67 selective_sync_remove_msg</extracomment>
        <translation>Seçimini kaldırdığınız klasörler bu bilgisayardan kalıcı olarak silinecek. NAS cihazındaki kopyalar korunacak. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <extracomment>68 selective_sync, 71 session_selective_sync_btn</extracomment>
        <translation>Seçmeli Eşitleme</translation>
    </message>
    <message>
        <source>Open Larkmoor Drive</source>
        <extracomment>69 open_main_app, 145 title_open_larkmoor</extracomment>
        <translation>Larkmoor Drive uygulamasını aç</translation>
    </message>
    <message>
        <source>File filters</source>
        <extracomment>70 file_selective_sync</extracomment>
        <translation>Dosya filtreleri</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <extracomment>72 msi_button_finish</extracomment>
        <translation>&amp;Son</translation>
    </message>
    <message>
        <source>File name</source>
        <extracomment>73 history_file_name, 285 col_file_name</extracomment>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>File names that begin with a period (.)</source>
        <extracomment>74 block_point_prefix</extracomment>
        <translation>Nokta (.) ile başlayan dosya adları</translation>
    </message>
    <message>
        <source>Files with these names will not be synced. Separate the names with semicolons.</source>
        <extracomment>75 block_file_name_tool_tip</extracomment>
        <translation>Bu adlara sahip dosyalar eşitlenmez. Adları noktalı virgülle ayırın.</translation>
    </message>
    <message>
        <source>Uploading</source>
        <extracomment>76 label_uploading</extracomment>
        <translation>Karşıya yükleniyor</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer. Larkmoor Drive will keep them in sync.</source>
        <extracomment>78 wizard_new_sync_folder_desc</extracomment>
        <translation>NAS cihazında ve bu bilgisayarda birer klasör seçin. Larkmoor Drive bu klasörleri eşitlenmiş tutacak.</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Larkmoor Drive will be installed for your user account only. Do you want to continue?</source>
        <extracomment>79 NSIS_NOT_ADMIN_CONFIRM</extracomment>
        <translation>Yönetici olarak oturum açmadınız. Larkmoor Drive yalnızca sizin kullanıcı hesabınız için kurulacak. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>The sync service is disabled for your account. Please contact the NAS administrator.</source>
        <extracomment>81 err_orlaqdisable</extracomment>
        <translation>Eşitleme hizmeti hesabınız için devre dışı. Lütfen NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>This is not the NAS that was originally linked. Please check the address or set up a new connection.</source>
        <extracomment>82 err_hb_not_match</extracomment>
        <translation>Bu, başlangıçta ilişkilendirilen NAS cihazı değil. Lütfen adresi denetleyin veya yeni bir bağlantı kurun.</translation>
    </message>
    <message>
        <source>You do not have permission to share this file. Please contact the NAS administrator.</source>
        <extracomment>83 sharing_restrict</extracomment>
        <translation>Bu dosyayı paylaşma izniniz yok. Lütfen NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>84 manage_option_tab_name</extracomment>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <extracomment>85 manage_setting_not_save</extracomment>
        <translation>Değişiklikleriniz kaydedilmedi. Bunları atmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Username</source>
        <extracomment>86 title_usr, 92 manage_proxy_label_username</extracomment>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>Manage</source>
        <extracomment>87 btn_manage</extracomment>
        <translation>Yönet</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove [ProductName] from this computer.</source>
        <extracomment>88 msi_readyremove_dlg_description</extracomment>
        <translation>Kurulum Sihirbazı [ProductName] programını bu bilgisayardan kaldırmaya hazır.</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>89 history_folder</extracomment>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>There are no folders available to sync.</source>
        <extracomment>90 no_valid_folder</extracomment>
        <translation>Eşitlenebilecek klasör yok.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <extracomment>91 manage_share_local_syncfolder</extracomment>
        <translation>Yerel klasör</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <extracomment>93 wizard_setup_advan_mode_title</extracomment>
        <translation>Gelişmiş Kurulum</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>94 status_desc_pause, 269 tray_status_paused</extracomment>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Welcome to Larkmoor Drive</source>
        <extracomment>95 title_welcome</extracomment>
        <translation>Larkmoor Drive&apos;a Hoş Geldiniz</translation>
    </message>
    <message>
        <source>Folder selection</source>
        <extracomment>96 folder_selective_sync</extracomment>
        <translation>Klasör seçimi</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in a few clicks. All your files will be synced to a single folder with the recommended settings.</source>
        <extracomment>97 wizard_setup_quick_mode_desc</extracomment>
        <translation>Bu bilgisayarı birkaç tıklamayla NAS cihazınızla ilişkilendirin. Tüm dosyalarınız önerilen ayarlarla tek bir klasöre eşitlenecek.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <extracomment>98 tray_opendir, 415 open_folder</extracomment>
        <translation>Klasörü aç</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <extracomment>100 manage_option_synchronization_mode</extracomment>
        <translation>Eşitleme yönü</translation>
    </message>
    <message>
        <source>Add a sync folder to an existing connection</source>
        <extracomment>101 wizard_sync_folder_new_session</extracomment>
        <translation>Mevcut bir bağlantıya eşitleme klasörü ekle</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <extracomment>102 advan_setup_wizard</extracomment>
        <translation>Gelişmiş Kurulum Sihirbazı</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <extracomment>103 context_menu_filter_folders</extracomment>
        <translation>Bu klasörleri eşitleme dışında bırak</translation>
    </message>
    <message>
        <source>A new version of Larkmoor Drive is available. Click here to update.</source>
        <extracomment>104 tray_click_to_update</extracomment>
        <translation>Yeni bir Larkmoor Drive sürümü var. Güncellemek için buraya tıklayın.</translation>
    </message>
    <message>
        <source>A newer version of Larkmoor Drive is already installed. To install this version, please uninstall the current version first.</source>
        <extracomment>105 NSIS_LARKMOOR_INSTALLED_NEWER</extracomment>
        <translation>Larkmoor Drive uygulamasının daha yeni bir sürümü zaten yüklü. Bu sürümü kurmak için lütfen önce mevcut sürümü kaldırın.</translation>
    </message>
    <message>
        <source>A different NAS has been found at this address. Please link this computer again.</source>
        <extracomment>106 status_desc_hb_changed</extracomment>
        <translation>Bu adreste farklı bir NAS cihazı bulundu. Lütfen bu bilgisayarı yeniden ilişkilendirin.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <extracomment>107 manage_option_merge_mode</extracomment>
        <translation>Birleştirme modu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>108 btn_cancel, 241 management_proxy_cancel_btn, 496 msi_button_cancel</extracomment>
        <translation>İptal</translation>
    </message>
    <message>
        <source>To use selective sync, please update Larkmoor Server on your NAS.</source>
        <extracomment>109 update_pkg_for_selective_sync</extracomment>
        <translation>Seçmeli eşitlemeyi kullanmak için lütfen NAS cihazınızdaki Larkmoor Server paketini güncelleyin.</translation>
    </message>
    <message>
        <source>Files that match the following names or extensions will not be synced.</source>
        <extracomment>110 black_list_desc</extracomment>
        <translation>Aşağıdaki adlarla veya uzantılarla eşleşen dosyalar eşitlenmez.</translation>
    </message>
    <message>
        <source>Choose the folders on the NAS that you want to sync to this computer.</source>
        <extracomment>111 advan_mode_set_share_folder_info</extracomment>
        <translation>NAS cihazındaki klasörlerden bu bilgisayarla eşitlemek istediklerinizi seçin.</translation>
    </message>
    <message>
        <source>Everything you put into this folder is synced to your NAS and to all your linked computers.</source>
        <extracomment>112 tutorial_first_desc</extracomment>
        <translation>Bu klasöre koyduğunuz her şey NAS cihazınızla ve ilişkilendirilmiş tüm bilgisayarlarınızla eşitlenir.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <extracomment>113 title_conn_mode</extracomment>
        <translation>Bağlantı modu</translation>
    </message>
    <message>
        <source>ID</source>
        <extracomment>114 title_id, 464 col_id</extracomment>
        <translation>Kimlik</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been reached. Please free up some space or contact the NAS administrator.</source>
        <extracomment>115 msg_share_quotafull</extracomment>
        <translation>“%1” paylaşılan klasörünün kotası doldu. Lütfen yer açın veya NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <extracomment>116 manage_proxy_title</extracomment>
        <translation>Proxy Ayarları</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <extracomment>117 manage_option_sync_mode</extracomment>
        <translation>Eşitleme modu</translation>
    </message>
    <message>
        <source>Summary</source>
        <extracomment>118 msg_info</extracomment>
        <translation>Özet</translation>
    </message>
    <message>
        <source>Connection Already Exists</source>
        <extracomment>119 wizard_setup_repeat_warning_title</extracomment>
        <translation>Bağlantı Zaten Var</translation>
    </message>
    <message>
        <source>Folder name</source>
        <extracomment>120 folder_name</extracomment>
        <translation>Klasör adı</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <extracomment>121 two_way_sync</extracomment>
        <translation>İki yönlü eşitleme</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <extracomment>122 msi_maintenance_dlg_change_tooltip</extracomment>
        <translation>Kurulumu değiştir</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS. Please contact the NAS administrator.</source>
        <extracomment>123 err_user_home_disabled</extracomment>
        <translation>NAS cihazında ana klasör hizmeti devre dışı. Lütfen NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Install [ProductName]</source>
        <extracomment>124 msi_ready_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont][ProductName] Kurulmaya Hazır</translation>
    </message>
    <message>
        <source>March</source>
        <extracomment>125 month_mar</extracomment>
        <translation>Mart</translation>
    </message>
    <message>
        <source>Your files, wherever you are</source>
        <extracomment>126 msg_slogan</extracomment>
        <translation>Nerede olursanız olun, dosyalarınız yanınızda</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License Agreement</source>
        <extracomment>127 msi_eula_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Lisans Sözleşmesi</translation>
    </message>
    <message>
        <source>Get link</source>
        <extracomment>128 context_menu_share_link</extracomment>
        <translation>Paylaşım bağlantısını al</translation>
    </message>
    <message>
        <source>Valid from</source>
        <extracomment>129 sharing_enable_start_at</extracomment>
        <translation>Geçerlilik başlangıcı</translation>
    </message>
    <message>
        <source>February</source>
        <extracomment>130 month_feb</extracomment>
        <translation>Şubat</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <extracomment>131 err_version_short</extracomment>
        <translation>Uyumsuz sürüm</translation>
    </message>
    <message>
        <source>The network connection is unstable.</source>
        <extracomment>132 tray_unstable</extracomment>
        <translation>Ağ bağlantısı kararsız.</translation>
    </message>
    <message>
        <source>Do not sync the following files:</source>
        <extracomment>133 file_black_list_label</extracomment>
        <translation>Şu dosyaları eşitleme dışında bırak:</translation>
    </message>
    <message>
        <source>Linking...</source>
        <extracomment>134 msg_linking, 308 status_desc_linking</extracomment>
        <translation>İlişkilendiriliyor...</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed because an error occurred. No changes have been made to your computer. To try again later, please run the installer again.</source>
        <extracomment>135 msi_fatalerror_dlg_description1</extracomment>
        <translation>Bir hata oluştuğu için [ProductName] kurulamadı. Bilgisayarınızda hiçbir değişiklik yapılmadı. Daha sonra yeniden denemek için lütfen yükleyiciyi bir kez daha çalıştırın.</translation>
    </message>
    <message>
        <source>Download only</source>
        <extracomment>136 download_only</extracomment>
        <translation>Yalnızca indir</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists on this computer. Do you want to merge it with the folder on the NAS?</source>
        <extracomment>137 msg_mergefolder</extracomment>
        <translation>“%1” klasörü bu bilgisayarda zaten var. NAS cihazındaki klasörle birleştirmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Just now</source>
        <extracomment>138 time_just_now</extracomment>
        <translation>Az önce</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <extracomment>139 conflict_policy_rename_conflict</extracomment>
        <translation>İki sürümü de koru ve eski olanı yeniden adlandır</translation>
    </message>
    <message>
        <source>Please read the following License Agreement carefully.</source>
        <extracomment>140 msi_eula_dlg_description</extracomment>
        <translation>Lütfen aşağıdaki Lisans Sözleşmesini dikkatle okuyun.</translation>
    </message>
    <message>
        <source>Find a NAS on your local network</source>
        <extracomment>141 wizard_find_local_hb_tooltip</extracomment>
        <translation>Yerel ağınızda NAS cihazı bulun</translation>
    </message>
    <message>
        <source>Recently Changed Files</source>
        <extracomment>142 recently_changed_title</extracomment>
        <translation>Son Değiştirilen Dosyalar</translation>
    </message>
    <message>
        <source>Unable to enable sync for the folder &quot;%1&quot;. Please try again.</source>
        <extracomment>143 err_share_fail_enable</extracomment>
        <translation>“%1” klasörü için eşitleme etkinleştirilemedi. Lütfen yeniden deneyin.</translation>
    </message>
    <message>
        <source>Finish</source>
        <extracomment>144 finish</extracomment>
        <translation>Son</translation>
    </message>
    <message>
        <source>Enter your 6-digit verification code</source>
        <extracomment>146 connection_enter_otp</extracomment>
        <translation>6 basamaklı doğrulama kodunuzu girin</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <extracomment>147 sharing_link</extracomment>
        <translation>Paylaşım bağlantısı</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <extracomment>148 next_x_pages</extracomment>
        <translation>Sonraki %1 sayfa</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <extracomment>149 msg_test_connect</extracomment>
        <translation>Bağlantı sınanıyor...</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <extracomment>150 msg_language_restart</extracomment>
        <translation>Yeni dil ayarlarını uygulamak için lütfen %1 uygulamasını yeniden başlatın.</translation>
    </message>
    <message>
        <source>You can open Larkmoor Drive at any time from its tray icon.</source>
        <extracomment>151 msg_finish_way</extracomment>
        <translation>Larkmoor Drive uygulamasını istediğiniz zaman tepsi simgesinden açabilirsiniz.</translation>
    </message>
    <message>
        <source>Rename</source>
        <extracomment>152 history_rename</extracomment>
        <translation>Yeniden adlandırma</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <extracomment>153 msi_button_next</extracomment>
        <translation>İ&amp;leri</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>154 yes</extracomment>
        <translation>Evet</translation>
    </message>
    <message>
        <source>Folder path</source>
        <extracomment>155 title_folderpath</extracomment>
        <translation>Klasör yolu</translation>
    </message>
    <message>
        <source>An unknown issue has occurred, please restart Larkmoor Drive.</source>
        <extracomment>156 msg_error</extracomment>
        <translation>Bilinmeyen bir sorun oluştu, lütfen Larkmoor Drive uygulamasını yeniden başlatın.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <extracomment>157 read_only</extracomment>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <extracomment>158 manage_option_use_black_white_icon</extracomment>
        <translation>Tek renkli tepsi simgesi kullan</translation>
    </message>
    <message>
        <source>Resume Connection</source>
        <extracomment>159 resume_connection</extracomment>
        <translation>Bağlantıyı Sürdür</translation>
    </message>
    <message>
        <source>May</source>
        <extracomment>160 month_may</extracomment>
        <translation>Mayıs</translation>
    </message>
    <message>
        <source>Larkmoor Drive is starting...</source>
        <extracomment>161 msg_startup</extracomment>
        <translation>Larkmoor Drive başlatılıyor...</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>162 msi_readyrepair_dlg_text</extracomment>
        <translation>[ProductName] kurulumunu onarmak için Onar düğmesine tıklayın. Ayarlarınızı gözden geçirmek için Geri, Kurulum Sihirbazından çıkmak için İptal düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Repair [ProductName]</source>
        <extracomment>163 msi_readyrepair_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont][ProductName] Onarılmaya Hazır</translation>
    </message>
    <message>
        <source>Unable to reach the Bridgeway server. Please check your network connection and try again.</source>
        <extracomment>164 err_autoconn_ctrl</extracomment>
        <translation>Bridgeway sunucusuna ulaşılamıyor. Lütfen ağ bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The contents of both folders will be combined. Files that exist in both folders will be handled according to your conflict policy.</source>
        <extracomment>165 info_mergefolder</extracomment>
        <translation>İki klasörün içeriği birleştirilecek. Her iki klasörde de bulunan dosyalara çakışma ilkenize göre işlem yapılacak.</translation>
    </message>
    <message>
        <source>Unable to resolve a conflict for the file &quot;%1&quot;.</source>
        <extracomment>166 err_conflict</extracomment>
        <translation>“%1” dosyasındaki çakışma çözülemedi.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <extracomment>167 selective_sync_loading</extracomment>
        <translation>Klasör listesi yükleniyor...</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this sync folder? Your files on the NAS and on this computer will be kept.</source>
        <extracomment>168 msg_shareitem_delete</extracomment>
        <translation>Bu eşitleme klasörünü kaldırmak istediğinizden emin misiniz? NAS cihazındaki ve bu bilgisayardaki dosyalarınız korunacak.</translation>
    </message>
    <message>
        <source>Verifying your account...</source>
        <extracomment>169 msg_checkpass</extracomment>
        <translation>Hesabınız doğrulanıyor...</translation>
    </message>
    <message>
        <source>Your version of Larkmoor Drive is too old for this NAS. Please update Larkmoor Drive and try again.</source>
        <extracomment>170 err_version_client</extracomment>
        <translation>Larkmoor Drive sürümünüz bu NAS cihazı için çok eski. Lütfen Larkmoor Drive uygulamasını güncelleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty. Its contents will be merged with the folder on the NAS.</source>
        <extracomment>171 msg_folder_not_empty</extracomment>
        <translation>“%1” klasörü boş değil. İçeriği NAS cihazındaki klasörle birleştirilecek.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link. Please try again later.</source>
        <extracomment>172 err_orlaq_share_link</extracomment>
        <translation>Paylaşım bağlantısı oluşturulamadı. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <extracomment>173 msi_button_remove</extracomment>
        <translation>&amp;Kaldır</translation>
    </message>
    <message>
        <source>Expires on</source>
        <extracomment>174 sharing_enable_expire_at</extracomment>
        <translation>Bitiş tarihi</translation>
    </message>
    <message>
        <source>Expires after</source>
        <extracomment>175 sharing_exp_after</extracomment>
        <translation>Geçerlilik süresi</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <extracomment>176 manage_share_title</extracomment>
        <translation>Eşitleme Klasörleri</translation>
    </message>
    <message>
        <source>Click Remove to uninstall [ProductName]. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>177 msi_readyremove_dlg_text</extracomment>
        <translation>[ProductName] programını kaldırmak için Kaldır düğmesine tıklayın. Ayarlarınızı gözden geçirmek için Geri, Kurulum Sihirbazından çıkmak için İptal düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>178 col_time, 273 history_time</extracomment>
        <translation>Saat</translation>
    </message>
    <message>
        <source>File names:</source>
        <extracomment>179 block_file_name_label</extracomment>
        <translation>Dosya adları:</translation>
    </message>
    <message>
        <source>The volume that holds the sync folder &quot;%1&quot; is not mounted. Please mount it to resume syncing.</source>
        <extracomment>180 err_syncfolder_not_mounted</extracomment>
        <translation>“%1” eşitleme klasörünün bulunduğu birim bağlanmamış. Eşitlemeyi sürdürmek için lütfen birimi bağlayın.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <extracomment>181 manage_proxy_chk_sys_proxy</extracomment>
        <translation>Sistem proxy ayarlarını kullan</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <extracomment>182 manage_share_enable</extracomment>
        <translation>Eşitlemeyi etkinleştir</translation>
    </message>
    <message>
        <source>You do not have permission to download this file.</source>
        <extracomment>183 desc_cannot_download</extracomment>
        <translation>Bu dosyayı indirme izniniz yok.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <extracomment>184 notify_new_share_short</extracomment>
        <translation>Yeni paylaşılan klasör</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <extracomment>185 file_ext_label</extracomment>
        <translation>Dosya uzantıları:</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;? Your files on the NAS and on this computer will be kept.</source>
        <extracomment>186 session_unlink_confirm_msg</extracomment>
        <translation>“%1” eşitlemesini durdurmak istediğinizden emin misiniz? NAS cihazındaki ve bu bilgisayardaki dosyalarınız korunacak.</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>187 col_file_size</extracomment>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Status:</source>
        <extracomment>188 msi_progress_dlg_status_label</extracomment>
        <translation>Durum:</translation>
    </message>
    <message>
        <source>%1 upgrade failed (error code: %2).</source>
        <extracomment>189 wizard_client_upgrade_failed</extracomment>
        <translation>%1 yükseltilemedi (hata kodu: %2).</translation>
    </message>
    <message>
        <source>Unlink</source>
        <extracomment>190 action_unlink, 338 session_unlink_btn</extracomment>
        <translation>İlişkiyi Kaldır</translation>
    </message>
    <message>
        <source>SSL Certificate Warning</source>
        <extracomment>191 title_ssl_warning</extracomment>
        <translation>SSL Sertifikası Uyarısı</translation>
    </message>
    <message>
        <source>A connection to this NAS already exists on this computer.</source>
        <extracomment>192 wizard_setup_repeat_warning_desc</extracomment>
        <translation>Bu bilgisayarda bu NAS cihazına yönelik bir bağlantı zaten var.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS to upload &quot;%1&quot;.</source>
        <extracomment>193 msg_diskfull</extracomment>
        <translation>NAS cihazında “%1” öğesini karşıya yüklemek için yeterli boş alan yok.</translation>
    </message>
    <message>
        <source>Please enter your verification code.</source>
        <extracomment>194 err_otp_required</extracomment>
        <translation>Lütfen doğrulama kodunuzu girin.</translation>
    </message>
    <message>
        <source>Choose Which Files to Sync</source>
        <extracomment>195 selective_sync_file_title</extracomment>
        <translation>Eşitlenecek Dosyaları Seçin</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>196 tray_exit</extracomment>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>Please confirm the folders to be synced.</source>
        <extracomment>197 wizard_set_sync_folder_desc</extracomment>
        <translation>Lütfen eşitlenecek klasörleri onaylayın.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <extracomment>198 msg_welcome</extracomment>
        <translation>Hoş geldiniz!</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <extracomment>199 msg_seldir</extracomment>
        <translation>Klasör Seçin</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another one.</source>
        <extracomment>200 wizard_access_deny_sync_folder_warning</extracomment>
        <translation>Bu klasöre erişim izniniz yok. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <extracomment>201 tray_updating</extracomment>
        <translation>Güncelleniyor...</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <extracomment>202 manage_share_change_folder</extracomment>
        <translation>Klasörü Değiştir</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>203 title_value</extracomment>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Larkmoor is already installed. To install this version, please uninstall the current version first</source>
        <extracomment>204 NSIS_LARKMOOR_INSTALLED_CURRENT</extracomment>
        <translation>Larkmoor zaten yüklü. Bu sürümü kurmak için lütfen önce mevcut sürümü kaldırın</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to install [ProductName] on this computer.</source>
        <extracomment>205 msi_ready_dlg_description</extracomment>
        <translation>Kurulum Sihirbazı [ProductName] programını bu bilgisayara kurmaya hazır.</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>206 title_name</extracomment>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Add Sync Folder</source>
        <extracomment>207 session_add_btn</extracomment>
        <translation>Eşitleme Klasörü Ekle</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <extracomment>208 open_sync_status</extracomment>
        <translation>Eşitleme durumunu göster</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Failed</source>
        <extracomment>209 msi_fatalerror_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] Kurulumu Başarısız Oldu</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <extracomment>210 manage_setting_no_change</extracomment>
        <translation>Hiçbir ayar değiştirilmedi.</translation>
    </message>
    <message>
        <source>SSL</source>
        <extracomment>211 title_ssl_enable</extracomment>
        <translation>SSL</translation>
    </message>
    <message>
        <source>You can open Larkmoor Drive at any time to sync more folders or change the sync settings.</source>
        <extracomment>212 quick_mode_finish_page_more_detail</extracomment>
        <translation>Daha fazla klasör eşitlemek veya eşitleme ayarlarını değiştirmek için istediğiniz zaman Larkmoor Drive uygulamasını açabilirsiniz.</translation>
    </message>
    <message>
        <source>Maximum number of downloads</source>
        <extracomment>213 sharing_enable_expire_times</extracomment>
        <translation>En fazla indirme sayısı</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>214 history_download</extracomment>
        <translation>İndirme</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>215 history_date</extracomment>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>This computer is already linked to this NAS.</source>
        <extracomment>216 err_link_same_hb</extracomment>
        <translation>Bu bilgisayar zaten bu NAS cihazıyla ilişkilendirilmiş.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <extracomment>217 manage_proxy_chk_no_proxy</extracomment>
        <translation>Proxy kullanma</translation>
    </message>
    <message>
        <source>The version of Larkmoor Server on the NAS is too old. Please update it and try again.</source>
        <extracomment>218 err_version_server</extracomment>
        <translation>NAS cihazındaki Larkmoor Server sürümü çok eski. Lütfen güncelleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>How would you like to set up Larkmoor Drive?</source>
        <extracomment>219 wizard_setup_mode_page_desc</extracomment>
        <translation>Larkmoor Drive uygulamasını nasıl kurmak istersiniz?</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>220 history_keyword</extracomment>
        <translation>Anahtar sözcük</translation>
    </message>
    <message>
        <source>Download History</source>
        <extracomment>221 main_download_history</extracomment>
        <translation>İndirme Geçmişi</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <extracomment>222 manage_option_enable_icon_overlay</extracomment>
        <translation>Dosya ve klasörlerde eşitleme durumu simgelerini göster</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>223 msi_ready_dlg_text</extracomment>
        <translation>Kurulumu başlatmak için Kur düğmesine tıklayın. Ayarlarınızı gözden geçirmek için Geri, Kurulum Sihirbazından çıkmak için İptal düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>The download has been canceled.</source>
        <extracomment>224 msg_download_aborted</extracomment>
        <translation>İndirme iptal edildi.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <extracomment>225 title_folder_nonempty</extracomment>
        <translation>Klasör Boş Değil</translation>
    </message>
    <message>
        <source>Choose which features of [ProductName] are installed on this computer.</source>
        <extracomment>226 msi_maintenance_dlg_change_text</extracomment>
        <translation>Bu bilgisayara hangi [ProductName] özelliklerinin kurulacağını seçin.</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS has been reached. Please free up some space or contact the NAS administrator.</source>
        <extracomment>227 wizard_quotafull_sync_folder_warning, 271 status_desc_quotafull</extracomment>
        <translation>NAS cihazındaki depolama kotanız doldu. Lütfen yer açın veya NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>228 btn_ok, 516 msi_button_ok</extracomment>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Open My Folder</source>
        <extracomment>229 quick_mode_open_folder_btn</extracomment>
        <translation>Klasörümü Aç</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <extracomment>230 dont_show_msg</extracomment>
        <translation>Bu iletiyi bir daha gösterme</translation>
    </message>
    <message>
        <source>Sync will be disabled for this folder, and its files will be permantely removed from this computer. The copies on the NAS will be kept.</source>
        <extracomment>231 share_enable_remove_msg</extracomment>
        <translation>Bu klasör için eşitleme devre dışı bırakılacak ve içindeki dosyalar bu bilgisayardan kalıcı olarak silinecek. NAS cihazındaki kopyalar korunacak.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <extracomment>232 msi_button_ignore</extracomment>
        <translation>&amp;Yoksay</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard configures [ProductName].  This may take several minutes.</source>
        <extracomment>233 msi_progress_dlg_text, 344 msi_progress_dlg_description</extracomment>
        <translation>Kurulum Sihirbazı [ProductName] programını yapılandırırken lütfen bekleyin. Bu birkaç dakika sürebilir.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them afterwards</source>
        <extracomment>234 msi_filesinuse_dlg_closeall</extracomment>
        <translation>&amp;Uygulamaları kapat ve ardından yeniden başlat</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>235 history_search</extracomment>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Your version of Larkmoor Drive is not up-to-date. Please update it to resume syncing.</source>
        <extracomment>236 status_desc_errversion_client</extracomment>
        <translation>Larkmoor Drive sürümünüz güncel değil. Eşitlemeyi sürdürmek için lütfen güncelleyin.</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Please check your network connection and try again.</source>
        <extracomment>237 wizard_network_err_sync_folder_warning</extracomment>
        <translation>NAS cihazıyla bağlantı kesildi. Lütfen ağ bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The setup of [ProductName] was interrupted. No changes have been made to your computer. To install the program at another time, please run the installer again.</source>
        <extracomment>239 msi_userexit_dlg_description1</extracomment>
        <translation>[ProductName] kurulumu yarıda kesildi. Bilgisayarınızda hiçbir değişiklik yapılmadı. Programı başka bir zaman kurmak için lütfen yükleyiciyi yeniden çalıştırın.</translation>
    </message>
    <message>
        <source>You Larkmoor Server package version is not up-to-date. Please update it to resume syncing.</source>
        <extracomment>240 status_desc_errversion_server</extracomment>
        <translation>Larkmoor Server paketinizin sürümü güncel değil. Eşitlemeyi sürdürmek için lütfen güncelleyin.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>243 status_desc_perm_short, 510 err_share_perm_short</extracomment>
        <translation>İzin verilmedi</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Was Interrupted</source>
        <extracomment>244 msi_userexit_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] Kurulumu Yarıda Kesildi</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <extracomment>245 msi_readyrepair_dlg_description</extracomment>
        <translation>Kurulum Sihirbazı [ProductName] programını onarmaya hazır.</translation>
    </message>
    <message>
        <source>Preparing</source>
        <extracomment>246 progress_preparing</extracomment>
        <translation>Hazırlanıyor</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <extracomment>247 history_items</extracomment>
        <translation>%1 öğe</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <extracomment>248 msi_exit_dlg_launch</extracomment>
        <translation>[ProductName] programını şimdi &amp;başlat</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <extracomment>249 general_setting_show_tutorial</extracomment>
        <translation>Öğreticiyi göster</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <extracomment>250 try_syncing</extracomment>
        <translation>Eşitleme deneniyor...</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <extracomment>251 msi_button_repair</extracomment>
        <translation>&amp;Onar</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <extracomment>252 err_full_short</extracomment>
        <translation>Yeterli alan yok</translation>
    </message>
    <message>
        <source>Almost done</source>
        <extracomment>253 quick_mode_finish_page_title</extracomment>
        <translation>Neredeyse bitti</translation>
    </message>
    <message>
        <source>Failed to update Larkmoor database. Please restart or reinstall Larkmoor Drive to resume syncing.</source>
        <extracomment>254 upgrade_failed</extracomment>
        <translation>Larkmoor veritabanı güncellenemedi. Eşitlemeyi sürdürmek için lütfen Larkmoor Drive uygulamasını yeniden başlatın veya yeniden kurun.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <extracomment>255 msi_button_print</extracomment>
        <translation>&amp;Yazdır</translation>
    </message>
    <message>
        <source>%1 file(s) updated</source>
        <extracomment>257 files_update</extracomment>
        <translation>%1 dosya güncellendi</translation>
    </message>
    <message>
        <source>Edit Excluded Files</source>
        <extracomment>258 black_list_btn</extracomment>
        <translation>Dışlanan Dosyaları Düzenle</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <extracomment>259 wednesday</extracomment>
        <translation>Çarşamba</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Please free up some space to resume syncing.</source>
        <extracomment>260 status_desc_localdisk_full, 427 msg_localdiskfull</extracomment>
        <translation>Bu bilgisayarda yeterli boş alan yok. Eşitlemeyi sürdürmek için lütfen yer açın.</translation>
    </message>
    <message>
        <source>Sync</source>
        <extracomment>261 manage_sync_tab_name</extracomment>
        <translation>Eşitleme</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>263 session_pause_btn, 364 tray_pause</extracomment>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>The icons on your files and folders show whether they are up to date, syncing or not synced.</source>
        <extracomment>264 tutorial_second_desc</extracomment>
        <translation>Dosya ve klasörlerinizdeki simgeler bunların güncel mi, eşitleniyor mu yoksa eşitlenmemiş mi olduğunu gösterir.</translation>
    </message>
    <message>
        <source>Easy connection</source>
        <extracomment>265 conn_mode_ez</extracomment>
        <translation>Kolay bağlantı</translation>
    </message>
    <message>
        <source>Link again</source>
        <extracomment>266 tray_relink</extracomment>
        <translation>Yeniden ilişkilendir</translation>
    </message>
    <message>
        <source>Set Up Larkmoor Drive</source>
        <extracomment>267 wizard_welcome_title</extracomment>
        <translation>Larkmoor Drive Kurulumu</translation>
    </message>
    <message>
        <source>First page</source>
        <extracomment>268 first_page</extracomment>
        <translation>İlk sayfa</translation>
    </message>
    <message>
        <source>Trust and Continue</source>
        <extracomment>270 btn_ssl_continue</extracomment>
        <translation>Güven ve Devam Et</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that you want to sync.</source>
        <extracomment>272 msg_seldir_description</extracomment>
        <translation>Bu bilgisayarda eşitlemek istediğiniz klasörü seçin.</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <extracomment>274 context_menu_resume_folder</extracomment>
        <translation>Bu klasörü eşitle</translation>
    </message>
    <message>
        <source>You can also right-click a file to browse its previous versions.</source>
        <extracomment>275 tutorial_third_desc_2</extracomment>
        <translation>Bir dosyanın önceki sürümlerine göz atmak için de dosyaya sağ tıklayabilirsiniz.</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder. Please choose another one.</source>
        <extracomment>278 msg_folder_mount_point</extracomment>
        <translation>Bağlama noktası eşitleme klasörü olarak kullanılamaz. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <extracomment>279 msg_share_bubble_suffix</extracomment>
        <translation>sizinle paylaşıldı.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>280 msg_enabled</extracomment>
        <translation>Etkin</translation>
    </message>
    <message>
        <source>Sync these folders</source>
        <extracomment>281 context_menu_resume_folders</extracomment>
        <translation>Bu klasörleri eşitle</translation>
    </message>
    <message>
        <source>Got It</source>
        <extracomment>282 got_it</extracomment>
        <translation>Anladım</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <extracomment>283 msi_maintenance_dlg_remove_tooltip</extracomment>
        <translation>Kurulumu kaldır</translation>
    </message>
    <message>
        <source>Right-click a file and choose Get link to share it with others.</source>
        <extracomment>284 tutorial_third_desc</extracomment>
        <translation>Bir dosyayı başkalarıyla paylaşmak için dosyaya sağ tıklayıp Paylaşım bağlantısını al seçeneğini belirleyin.</translation>
    </message>
    <message>
        <source>Continue</source>
        <extracomment>286 btn_continue</extracomment>
        <translation>Devam Et</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <extracomment>287 err_otp_invalid</extracomment>
        <translation>Doğrulama kodu yanlış. Lütfen yeniden deneyin.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, Repair or Remove [ProductName]</source>
        <extracomment>288 msi_maintenance_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont][ProductName] Programını Değiştir, Onar veya Kaldır</translation>
    </message>
    <message>
        <source>This computer is now linked to %1.</source>
        <extracomment>289 wizard_finish_pairing_desc</extracomment>
        <translation>Bu bilgisayar artık %1 cihazıyla ilişkilendirildi.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are being synced.</source>
        <extracomment>290 quick_mode_end_msg</extracomment>
        <translation>Kurulum tamamlandı. Dosyalarınız eşitleniyor.</translation>
    </message>
    <message>
        <source>Show Larkmoor Drive in the context menu</source>
        <extracomment>291 manage_option_enable_context_menu</extracomment>
        <translation>Larkmoor Drive&apos;ı bağlam menüsünde göster</translation>
    </message>
    <message>
        <source>File deleted:</source>
        <extracomment>293 del</extracomment>
        <translation>Dosya silindi:</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Please check the address and port and try again.</source>
        <extracomment>294 err_proto</extracomment>
        <translation>NAS cihazı beklenmeyen bir yanıt gönderdi. Lütfen adresi ve bağlantı noktasını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <extracomment>295 btn_start_now</extracomment>
        <translation>Şimdi Başlat</translation>
    </message>
    <message>
        <source>A secure connection to %1 could not be established.</source>
        <extracomment>296 msg_ssl_error</extracomment>
        <translation>%1 ile güvenli bağlantı kurulamadı.</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>298 msi_maintenance_dlg_repair_label</extracomment>
        <translation>Onar</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>299 label_downloading</extracomment>
        <translation>İndiriliyor</translation>
    </message>
    <message>
        <source>The NAS is indexing this folder. Please try again later.</source>
        <extracomment>300 tooltip_folder_indexing</extracomment>
        <translation>NAS cihazı bu klasörü dizinliyor. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>301 manage_proxy_label_password, 409 title_pwd</extracomment>
        <translation>Parola</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed. Do you want to trust the new certificate?</source>
        <extracomment>302 msg_ssl_change</extracomment>
        <translation>%1 cihazının SSL sertifikası değişti. Yeni sertifikaya güvenmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Do not sync files larger than %1 MB</source>
        <extracomment>303 file_max_size_limit</extracomment>
        <translation>%1 MB&apos;den büyük dosyaları eşitleme dışında bırak</translation>
    </message>
    <message>
        <source>All events</source>
        <extracomment>304 history_all_event</extracomment>
        <translation>Tüm olaylar</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <extracomment>305 tray_syncing_file_cnt</extracomment>
        <translation>%1 dosya işleniyor...</translation>
    </message>
    <message>
        <source>Your account requires 2-step verification. Please set it up on the NAS first.</source>
        <extracomment>306 err_otp_enforced</extracomment>
        <translation>Hesabınız 2 adımlı doğrulama gerektiriyor. Lütfen önce bunu NAS cihazında ayarlayın.</translation>
    </message>
    <message>
        <source>Choose Which Folders to Sync</source>
        <extracomment>307 selective_sync_folder_title</extracomment>
        <translation>Eşitlenecek Klasörleri Seçin</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; is complete.</source>
        <extracomment>309 msg_download_done</extracomment>
        <translation>“%1” indirmesi tamamlandı.</translation>
    </message>
    <message>
        <source>This computer is already linked to %1. Each connection to the same NAS needs a seperate sync folder.</source>
        <extracomment>310 wizard_setup_repeat_warning</extracomment>
        <translation>Bu bilgisayar zaten %1 cihazıyla ilişkilendirilmiş. Aynı NAS cihazına yapılan her bağlantı için ayrı bir eşitleme klasörü gerekir.</translation>
    </message>
    <message>
        <source>Remove [ProductName] from this computer.</source>
        <extracomment>311 msi_maintenance_dlg_remove_text</extracomment>
        <translation>[ProductName] programını bu bilgisayardan kaldırın.</translation>
    </message>
    <message>
        <source>Changes to files on a network drive cannot be detected immediately. Syncing may be delayed.</source>
        <extracomment>312 msg_network_drive_watch</extracomment>
        <translation>Ağ sürücüsündeki dosya değişiklikleri hemen algılanamaz. Eşitleme gecikebilir.</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>313 manage_option_language</extracomment>
        <translation>Dil</translation>
    </message>
    <message>
        <source>File added: </source>
        <extracomment>314 add</extracomment>
        <translation>Dosya eklendi: </translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <extracomment>315 file_max_size_label</extracomment>
        <translation>En büyük dosya boyutu:</translation>
    </message>
    <message>
        <source>No data </source>
        <extracomment>316 history_no_data</extracomment>
        <translation>Veri yok </translation>
    </message>
    <message>
        <source>Shared folder</source>
        <extracomment>317 manage_share_name</extracomment>
        <translation>Paylaşılan klasör</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <extracomment>318 title_changefolder</extracomment>
        <translation>Eşitleme Klasörünü Değiştir</translation>
    </message>
    <message>
        <source>Monday</source>
        <extracomment>319 monday</extracomment>
        <translation>Pazartesi</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <extracomment>320 main_sync_task</extracomment>
        <translation>Eşitleme Görevleri</translation>
    </message>
    <message>
        <source>Encrypt the data transfer with SSL</source>
        <extracomment>321 manage_option_enable_ssl</extracomment>
        <translation>Veri aktarımını SSL ile şifrele</translation>
    </message>
    <message>
        <source>Unable to download &quot;%1&quot;.</source>
        <extracomment>322 msg_download_fail</extracomment>
        <translation>“%1” indirilemedi.</translation>
    </message>
    <message>
        <source>Auto Upgrade</source>
        <extracomment>323 title_upgrade</extracomment>
        <translation>Otomatik Yükseltme</translation>
    </message>
    <message>
        <source>Add a Sync Folder</source>
        <extracomment>324 wizard_new_sync_folder_title</extracomment>
        <translation>Eşitleme Klasörü Ekle</translation>
    </message>
    <message>
        <source>January</source>
        <extracomment>325 month_jan</extracomment>
        <translation>Ocak</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <extracomment>326 err_inval</extracomment>
        <translation>Geçersiz bir değer girildi. Lütfen girdiğiniz bilgileri denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Please wait while Larkmoor Drive connects to your NAS...</source>
        <extracomment>327 wizard_welcome_mask_desc</extracomment>
        <translation>Larkmoor Drive NAS cihazınıza bağlanırken lütfen bekleyin...</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <extracomment>328 error_zero_version</extracomment>
        <translation>Bu dosyanın önceki sürümü yok.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Please choose a folder that you can write to.</source>
        <extracomment>329 msg_folder_readonly</extracomment>
        <translation>“%1” klasörü salt okunur. Lütfen yazabileceğiniz bir klasör seçin.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated. You can let the Setup Wizard close them, or restart your computer later.</source>
        <extracomment>330 msi_filesinuse_dlg_text2</extracomment>
        <translation>Aşağıdaki uygulamalar güncellenmesi gereken dosyaları kullanıyor. Bunları Kurulum Sihirbazının kapatmasına izin verebilir veya bilgisayarınızı daha sonra yeniden başlatabilirsiniz.</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>331 language_default</extracomment>
        <translation>Sistem varsayılanı</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the NAS.</source>
        <extracomment>332 err_share_not_mounted</extracomment>
        <translation>“%1” paylaşılan klasörü NAS cihazında bağlanmamış.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <extracomment>333 msi_welcome_dlg_description</extracomment>
        <translation>Bu sihirbaz [ProductName] programını bilgisayarınıza kuracak. Devam etmek için İleri, Kurulum Sihirbazından çıkmak için İptal düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Disconnected from the NAS. Trying to reconnect...</source>
        <extracomment>334 err_disconn</extracomment>
        <translation>NAS cihazıyla bağlantı kesildi. Yeniden bağlanmaya çalışılıyor...</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>335 management_proxy_apply_btn</extracomment>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <extracomment>336 tray_setinfo</extracomment>
        <translation>Bağlantı ayarları</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <extracomment>337 history_last_week</extracomment>
        <translation>Son 7 gün</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <extracomment>339 context_menu_version_browse</extracomment>
        <translation>Önceki sürümlere göz at</translation>
    </message>
    <message>
        <source>Set Up Sync Folders</source>
        <extracomment>340 wizard_set_sync_folder</extracomment>
        <translation>Eşitleme Klasörlerini Ayarlayın</translation>
    </message>
    <message>
        <source>You do not have permission to create sharing links.</source>
        <extracomment>341 desc_cannot_share_link</extracomment>
        <translation>Paylaşım bağlantısı oluşturma izniniz yok.</translation>
    </message>
    <message>
        <source>Learn More</source>
        <extracomment>342 more_tutorial</extracomment>
        <translation>Daha Fazla Bilgi</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated. Please close them and click Retry to continue, or click Exit to end the installation.</source>
        <extracomment>343 msi_filesinuse_dlg_text</extracomment>
        <translation>Aşağıdaki uygulamalar güncellenmesi gereken dosyaları kullanıyor. Lütfen bunları kapatın ve devam etmek için Yeniden Dene, kurulumu sonlandırmak için Çık düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>November</source>
        <extracomment>346 month_nov</extracomment>
        <translation>Kasım</translation>
    </message>
    <message>
        <source>Reading the connection mode...</source>
        <extracomment>347 conn_mode_reading</extracomment>
        <translation>Bağlantı modu okunuyor...</translation>
    </message>
    <message>
        <source>Thursday</source>
        <extracomment>350 thursday</extracomment>
        <translation>Perşembe</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <extracomment>351 open_contain_folder</extracomment>
        <translation>Bulunduğu klasörü aç</translation>
    </message>
    <message>
        <source>Larkmoor Drive is running.</source>
        <extracomment>352 msg_running</extracomment>
        <translation>Larkmoor Drive çalışıyor.</translation>
    </message>
    <message>
        <source>Stay in Control</source>
        <extracomment>353 tutorial_fourth_title</extracomment>
        <translation>Denetim Sizde</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <extracomment>354 context_menu_filter_folder</extracomment>
        <translation>Bu klasörü eşitleme dışında bırak</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <extracomment>355 sharing_apply_and_copy_button</extracomment>
        <translation>Uygula ve Paylaşım Bağlantısını Kopyala</translation>
    </message>
    <message>
        <source>August</source>
        <extracomment>357 month_aug</extracomment>
        <translation>Ağustos</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <extracomment>358 msg_catchevent</extracomment>
        <translation>Dosya değişiklikleri izleniyor...</translation>
    </message>
    <message>
        <source>Merge</source>
        <extracomment>359 btn_merge</extracomment>
        <translation>Birleştir</translation>
    </message>
    <message>
        <source>File type</source>
        <extracomment>360 history_file_type</extracomment>
        <translation>Dosya türü</translation>
    </message>
    <message>
        <source>Re&amp;try</source>
        <extracomment>361 msi_button_retry</extracomment>
        <translation>Yeniden &amp;Dene</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>362 title_ip</extracomment>
        <translation>Adres</translation>
    </message>
    <message>
        <source>A sync folder with this name already exists. Please choose another name.</source>
        <extracomment>363 wizard_share_name_duplicate_warning</extracomment>
        <translation>Bu ada sahip bir eşitleme klasörü zaten var. Lütfen başka bir ad seçin.</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>365 btn_back</extracomment>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>366 tray_management_page, 374 msg_summary, 482 network_management_page_btn</extracomment>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already part of another sync folder.</source>
        <extracomment>367 err_share_folder_conflict</extracomment>
        <translation>“%1” klasörü zaten başka bir eşitleme klasörünün parçası.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <extracomment>368 sunday</extracomment>
        <translation>Pazar</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <extracomment>369 tuesday</extracomment>
        <translation>Salı</translation>
    </message>
    <message>
        <source>Put Your Files Here</source>
        <extracomment>370 tutorial_first_title</extracomment>
        <translation>Dosyalarınızı Buraya Koyun</translation>
    </message>
    <message>
        <source>Larkmoor Drive is initializing...</source>
        <extracomment>371 desc_lkmr_env_preparing</extracomment>
        <translation>Larkmoor Drive başlıyor...</translation>
    </message>
    <message>
        <source>The connection is not secure because the SSL certificate of the NAS could not be verified.</source>
        <extracomment>372 status_desc_ssl_verify_fail</extracomment>
        <translation>NAS cihazının SSL sertifikası doğrulanamadığı için bağlantı güvenli değil.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Please contact the NAS administrator.</source>
        <extracomment>373 wizard_user_disable_sync_folder_warning</extracomment>
        <translation>Hesabınız devre dışı bırakıldı. Lütfen NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <extracomment>375 manage_share_loading</extracomment>
        <translation>Paylaşılan klasörler yükleniyor...</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <extracomment>376 manage_option_enable_desktop_notify</extracomment>
        <translation>Masaüstü bildirimlerini göster</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>377 history_type</extracomment>
        <translation>Tür</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud service. Syncing it twice may cause file conflicts.</source>
        <extracomment>378 conflict_dropbox</extracomment>
        <translation>Bu klasör zaten başka bir bulut hizmeti tarafından eşitleniyor. İki kez eşitlenmesi dosya çakışmalarına yol açabilir.</translation>
    </message>
    <message>
        <source>Port</source>
        <extracomment>379 manage_proxy_server_port</extracomment>
        <translation>Bağlantı noktası</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>380 tray_about</extracomment>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>Unable to sign in. Please check your username and password.</source>
        <extracomment>381 err_auth</extracomment>
        <translation>Oturum açılamadı. Lütfen kullanıcı adınızı ve parolanızı denetleyin.</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>382 history_to</extracomment>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>Choose a Sync Mode</source>
        <extracomment>383 selective_sync_mode_title</extracomment>
        <translation>Bir Eşitleme Modu Seçin</translation>
    </message>
    <message>
        <source>Custom validity period</source>
        <extracomment>384 sharing_customize_duration</extracomment>
        <translation>Özel geçerlilik süresi</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <extracomment>385 msg_download_downloading</extracomment>
        <translation>“%1” indiriliyor...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <extracomment>386 status_desc_syncing</extracomment>
        <translation>Eşitleniyor: %1</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>387 today</extracomment>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>See the Status at a Glance</source>
        <extracomment>388 tutorial_second_title</extracomment>
        <translation>Durumu Bir Bakışta Görün</translation>
    </message>
    <message>
        <source>Proxy</source>
        <extracomment>389 manage_proxy_tab_name</extracomment>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>390 manage_option_title</extracomment>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved, renamed or deleted.</source>
        <extracomment>391 err_local_sync_folder_miss</extracomment>
        <translation>“%1” yerel eşitleme klasörü bulunamıyor. Taşınmış, yeniden adlandırılmış veya silinmiş olabilir.</translation>
    </message>
    <message>
        <source>Unable to remove the sync folder &quot;%1&quot;.</source>
        <extracomment>392 err_shareitem_delete</extracomment>
        <translation>“%1” eşitleme klasörü kaldırılamadı.</translation>
    </message>
    <message>
        <source>Initializing</source>
        <extracomment>393 label_preparing</extracomment>
        <translation>Başlatılıyor</translation>
    </message>
    <message>
        <source>Link a New NAS</source>
        <extracomment>394 link_new_nas</extracomment>
        <translation>Yeni Bir NAS Cihazı İlişkilendir</translation>
    </message>
    <message>
        <source>{\\DlgFont8}I do not accept the terms of the License Agreement</source>
        <extracomment>395 msi_eula_dlg_reject</extracomment>
        <translation>{\\DlgFont8}Lisans Sözleşmesinin koşullarını kabul etmiyorum</translation>
    </message>
    <message>
        <source>Your IP address has been blocked by the NAS. Please contact the NAS administrator.</source>
        <extracomment>396 err_ip_not_allowed</extracomment>
        <translation>IP adresiniz NAS cihazı tarafından engellendi. Lütfen NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>Last page</source>
        <extracomment>397 last_page</extracomment>
        <translation>Son sayfa</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>398 col_file_status, 498 manage_share_status</extracomment>
        <translation>Durum</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected.</source>
        <extracomment>399 msi_maintenance_dlg_change_text_disabled</extracomment>
        <translation>[ProductName] programında seçilebilecek özellik yok.</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <extracomment>400 msi_button_yes</extracomment>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>Standby</source>
        <extracomment>401 title_standby</extracomment>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>402 btn_done</extracomment>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Create a Larkmoor Drive folder</source>
        <extracomment>403 wizard_create_larkmoor_folder</extracomment>
        <translation>Larkmoor Drive klasörü oluştur</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is now available. Click here to sync it.</source>
        <extracomment>404 notify_new_share</extracomment>
        <translation>“%1” paylaşılan klasörü artık kullanılabilir. Eşitlemek için buraya tıklayın.</translation>
    </message>
    <message>
        <source>Click the tray icon to pause syncing, view the sync history or change your settings.</source>
        <extracomment>405 tutorial_fourth_desc</extracomment>
        <translation>Eşitlemeyi duraklatmak, eşitleme geçmişini görüntülemek veya ayarlarınızı değiştirmek için tepsi simgesine tıklayın.</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <extracomment>406 msg_connectsucc</extracomment>
        <translation>Bağlantı başarıyla kuruldu.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <extracomment>407 msi_filesinuse_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]Kullanımdaki Dosyalar</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <extracomment>408 desc_cannot_list_version</extracomment>
        <translation>Bu dosyanın sürümleri listelenemiyor.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <extracomment>410 tray_data_checking</extracomment>
        <translation>Veriler denetleniyor...</translation>
    </message>
    <message>
        <source>A green check mark means that a file has been synced.</source>
        <extracomment>411 tutorial_second_desc_2</extracomment>
        <translation>Yeşil onay işareti dosyanın eşitlendiği anlamına gelir.</translation>
    </message>
    <message>
        <source>Sync has stopped</source>
        <extracomment>412 notify_abnormal_short</extracomment>
        <translation>Eşitleme durdu</translation>
    </message>
    <message>
        <source>Status information</source>
        <extracomment>413 title_status_info</extracomment>
        <translation>Durum bilgileri</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Please free up some space or contact the NAS administrator.</source>
        <extracomment>414 wizard_diskfull_sync_folder_warning, 426 status_desc_diskfull</extracomment>
        <translation>NAS cihazında yeterli boş alan yok. Lütfen yer açın veya NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <extracomment>416 msi_button_back</extracomment>
        <translation>&amp;Geri</translation>
    </message>
    <message>
        <source>Up to date</source>
        <extracomment>417 status_desc_uptodate, 457 tray_uptodate</extracomment>
        <translation>Güncel</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <extracomment>418 msg_finish</extracomment>
        <translation>Kurulum Tamamlandı</translation>
    </message>
    <message>
        <source>Larkmoor Drive keeps the files on this computer in sync with your NAS. Please enter your connection information to get started.</source>
        <extracomment>419 wizard_welcome_desc</extracomment>
        <translation>Larkmoor Drive bu bilgisayardaki dosyaları NAS cihazınızla eşitlenmiş tutar. Başlamak için lütfen bağlantı bilgilerinizi girin.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <extracomment>420 msi_maintenance_dlg_repair_tooltip</extracomment>
        <translation>Kurulumu onar</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <extracomment>421 msi_filesinuse_dlg_description</extracomment>
        <translation>Güncellenmesi gereken bazı dosyalar şu anda kullanımda.</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <extracomment>422 wizard_client_upgrade, 428 tray_upgrade</extracomment>
        <translation>Yükselt</translation>
    </message>
    <message>
        <source>Repair missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <extracomment>423 msi_maintenance_dlg_repair_text</extracomment>
        <translation>Eksik veya hasarlı [ProductName] dosyalarını, kısayollarını ve kayıt defteri girdilerini onarın.</translation>
    </message>
    <message>
        <source>Show status icons on files and folders that are not synced</source>
        <extracomment>424 manage_option_show_filtered_icons</extracomment>
        <translation>Eşitlenmeyen dosya ve klasörlerde durum simgelerini göster</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <extracomment>429 msg_unlinking</extracomment>
        <translation>İlişki kaldırılıyor...</translation>
    </message>
    <message>
        <source>Choose what you want to do with the installation.</source>
        <extracomment>430 msi_maintenance_dlg_description</extracomment>
        <translation>Kurulumla ne yapmak istediğinizi seçin.</translation>
    </message>
    <message>
        <source>December</source>
        <extracomment>431 month_dec</extracomment>
        <translation>Aralık</translation>
    </message>
    <message>
        <source>This Bridgeway ID does not exist. Please check the ID and try again.</source>
        <extracomment>432 err_autoconn_invalidid</extracomment>
        <translation>Bu Bridgeway kimliği yok. Lütfen kimliği denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match your permissions. Please change it in the settings.</source>
        <extracomment>433 sync_direction_mismatch</extracomment>
        <translation>Bu klasörün eşitleme yönü izinlerinizle uyuşmuyor. Lütfen ayarlardan değiştirin.</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <extracomment>434 main_settings</extracomment>
        <translation>Genel Ayarlar</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <extracomment>435 tray_updatedfile</extracomment>
        <translation>Son güncellenen dosyalar</translation>
    </message>
    <message>
        <source>The NAS has been replaced.</source>
        <extracomment>436 tray_hb_change</extracomment>
        <translation>NAS cihazı değiştirildi.</translation>
    </message>
    <message>
        <source>Add a sync folder on another NAS</source>
        <extracomment>437 wizard_sync_folder_new_nas</extracomment>
        <translation>Başka bir NAS cihazında eşitleme klasörü ekle</translation>
    </message>
    <message>
        <source>Larkmoor Drive</source>
        <extracomment>438 app_name</extracomment>
        <translation>Larkmoor Drive</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <extracomment>439 err_init_failed</extracomment>
        <translation>Başlatma başarısız oldu.</translation>
    </message>
    <message>
        <source>The volume on the NAS is not mounted. Please contact the NAS administrator.</source>
        <extracomment>440 err_remote_not_mounted</extracomment>
        <translation>NAS cihazındaki birim bağlanmamış. Lütfen NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <extracomment>442 err_proxy_ipport_empty</extracomment>
        <translation>Lütfen proxy sunucusunun adresini ve bağlantı noktasını girin.</translation>
    </message>
    <message>
        <source>September</source>
        <extracomment>443 month_sep</extracomment>
        <translation>Eylül</translation>
    </message>
    <message>
        <source>No options available</source>
        <extracomment>444 context_menu_no_option_available</extracomment>
        <translation>Kullanılabilir seçenek yok</translation>
    </message>
    <message>
        <source>Almost Done!</source>
        <extracomment>446 wizard_set_sync_folder_title</extracomment>
        <translation>Neredeyse Bitti!</translation>
    </message>
    <message>
        <source>Copy to %1</source>
        <extracomment>447 context_menu_sendto_prefix</extracomment>
        <translation>Şuraya kopyala: %1</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <extracomment>448 hb_overview</extracomment>
        <translation>NAS cihazına genel bakış</translation>
    </message>
    <message>
        <source>No NAS yet? Visit our website to learn more.</source>
        <extracomment>450 wizard_welcome_footer_info</extracomment>
        <translation>Henüz NAS cihazınız yok mu? Daha fazla bilgi için web sitemizi ziyaret edin.</translation>
    </message>
    <message>
        <source>July</source>
        <extracomment>451 month_jul</extracomment>
        <translation>Temmuz</translation>
    </message>
    <message>
        <source>Unable to create the folder &quot;%1&quot; on this computer.</source>
        <extracomment>452 wizard_create_local_folder_failed</extracomment>
        <translation>“%1” klasörü bu bilgisayarda oluşturulamadı.</translation>
    </message>
    <message>
        <source>Service disabled</source>
        <extracomment>453 err_orlaqdisable_short</extracomment>
        <translation>Hizmet devre dışı</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <extracomment>454 advanced_settings</extracomment>
        <translation>Gelişmiş Ayarlar</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <extracomment>455 msi_button_install</extracomment>
        <translation>&amp;Kur</translation>
    </message>
    <message>
        <source>File edited:</source>
        <extracomment>458 edit</extracomment>
        <translation>Dosya düzenlendi:</translation>
    </message>
    <message>
        <source>Start Larkmoor Drive when you sign in to your computer</source>
        <extracomment>459 manage_option_enable_startup</extracomment>
        <translation>Bilgisayarınızda oturum açtığınızda Larkmoor Drive uygulamasını başlat</translation>
    </message>
    <message>
        <source>Local network</source>
        <extracomment>460 conn_mode_lan</extracomment>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>Share with Others</source>
        <extracomment>462 tutorial_third_title</extracomment>
        <translation>Başkalarıyla Paylaşın</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <extracomment>463 msi_maintenance_dlg_remove_label</extracomment>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setting Up [ProductName]</source>
        <extracomment>465 msi_progress_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont][ProductName] Yapılandırılıyor</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account information.</source>
        <extracomment>466 wizard_connection_setting_desc</extracomment>
        <translation>NAS cihazınızın adresini ve hesap bilgilerinizi girin.</translation>
    </message>
    <message>
        <source>{\DlgFont8}I accept the terms of the License Agreement</source>
        <extracomment>467 msi_eula_dlg_accept</extracomment>
        <translation>{\DlgFont8}Lisans Sözleşmesinin koşullarını kabul ediyorum</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <extracomment>468 err_share_nonexist_short</extracomment>
        <translation>Paylaşılan klasör bulunamadı</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>469 history_yesterday</extracomment>
        <translation>Dün</translation>
    </message>
    <message>
        <source>Sharing links cannot be used because Bridgeway is not enabled on the NAS. Please contact the NAS administrator.</source>
        <extracomment>470 err_bridgeway_file_sharing</extracomment>
        <translation>NAS cihazında Bridgeway etkin olmadığından paylaşım bağlantıları kullanılamıyor. Lütfen NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Syncing it may cause data conflicts.</source>
        <extracomment>471 wizard_conflict_backup_warning</extracomment>
        <translation>Bu klasör bir yedekleme görevi tarafından kullanılıyor. Eşitlenmesi veri çakışmalarına yol açabilir.</translation>
    </message>
    <message>
        <source>Change</source>
        <extracomment>472 msi_maintenance_dlg_change_label</extracomment>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <extracomment>473 wizard_setup_quick_mode_title</extracomment>
        <translation>Hızlı Kurulum</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <extracomment>474 prev_x_pages</extracomment>
        <translation>Önceki %1 sayfa</translation>
    </message>
    <message>
        <source>%1 cannot be synced because it is in use, or acccess is denied.</source>
        <extracomment>475 label_locked_file</extracomment>
        <translation>%1 kullanımda olduğu veya erişim reddedildiği için eşitlenemiyor.</translation>
    </message>
    <message>
        <source>Sync your files across all your computers</source>
        <extracomment>476 msg_sub_slogan</extracomment>
        <translation>Dosyalarınızı tüm bilgisayarlarınız arasında eşitleyin</translation>
    </message>
    <message>
        <source>If a file has been changed both on this computer and on the NAS:</source>
        <extracomment>477 conflict_policy_desc</extracomment>
        <translation>Bir dosya hem bu bilgisayarda hem de NAS cihazında değiştirildiyse:</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <extracomment>478 msg_upgrading</extracomment>
        <translation>Yükseltiliyor...</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <extracomment>479 status_desc_abnormal_short</extracomment>
        <translation>İlgilenilmesi gerekiyor</translation>
    </message>
    <message>
        <source>Date range</source>
        <extracomment>480 history_date_range</extracomment>
        <translation>Tarih aralığı</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>481 history_delete</extracomment>
        <translation>Silme</translation>
    </message>
    <message>
        <source>Mount points are not supported</source>
        <extracomment>483 err_share_mountpt_short</extracomment>
        <translation>Bağlama noktaları desteklenmiyor</translation>
    </message>
    <message>
        <source>Copyright (c) %1 Larkmoor. All rights reserved.</source>
        <extracomment>484 msg_about</extracomment>
        <translation>© %1 Larkmoor. Tüm hakları saklıdır.</translation>
    </message>
    <message>
        <source>NAS</source>
        <extracomment>485 title_chart_tray</extracomment>
        <translation>NAS</translation>
    </message>
    <message>
        <source>Open file</source>
        <extracomment>486 open_file</extracomment>
        <translation>Dosyayı aç</translation>
    </message>
    <message>
        <source>Always keep the version on the NAS</source>
        <extracomment>487 conflict_policy_overwrite_client</extracomment>
        <translation>Her zaman NAS cihazındaki sürümü koru</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <extracomment>489 title_icon_double_clicked</extracomment>
        <translation>Tepsi simgesine çift tıklandığında</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>490 btn_next</extracomment>
        <translation>İleri</translation>
    </message>
    <message>
        <source>The sync database is damaged. Please restart or reinstall Larkmoor Drive.</source>
        <extracomment>491 err_database</extracomment>
        <translation>Eşitleme veritabanı hasarlı. Lütfen Larkmoor Drive uygulamasını yeniden başlatın veya yeniden kurun.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <extracomment>493 history_last_month</extracomment>
        <translation>Son 30 gün</translation>
    </message>
    <message>
        <source>Your quota on the NAS is not large enough to upload &quot;%1&quot;.</source>
        <extracomment>494 msg_quotafull</extracomment>
        <translation>NAS cihazındaki kotanız “%1” öğesini karşıya yüklemek için yeterli değil.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <extracomment>495 time_minute_ago</extracomment>
        <translation>%1 dakika önce</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <extracomment>497 msg_progress</extracomment>
        <translation>Adım %1 / %2</translation>
    </message>
    <message>
        <source>The shared folder does not exist or has been removed. Please choose another one.</source>
        <extracomment>499 wizard_share_nonexist_sync_folder_warning</extracomment>
        <translation>Paylaşılan klasör yok veya kaldırılmış. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>This folder contains, or lies inside, another sync folder. Please choose another one.</source>
        <extracomment>500 wizard_conflict_sync_folder_warning</extracomment>
        <translation>Bu klasör başka bir eşitleme klasörünü içeriyor veya başka bir eşitleme klasörünün içinde yer alıyor. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>No Thanks</source>
        <extracomment>501 no_need</extracomment>
        <translation>Hayır, Teşekkürler</translation>
    </message>
    <message>
        <source>Choose a Sync Direction</source>
        <extracomment>502 selective_sync_direction_title</extracomment>
        <translation>Bir Eşitleme Yönü Seçin</translation>
    </message>
    <message>
        <source>Internet</source>
        <extracomment>503 conn_mode_wan</extracomment>
        <translation>İnternet</translation>
    </message>
    <message>
        <source>You have reached the maximum number of sync folders.</source>
        <extracomment>504 err_share_limit</extracomment>
        <translation>Eşitleme klasörü sayısı üst sınırına ulaştınız.</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>506 history_reset</extracomment>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <extracomment>507 err_max_tries</extracomment>
        <translation>Çok fazla başarısız deneme yapıldı. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from %1?</source>
        <extracomment>508 msg_confirm_unlink</extracomment>
        <translation>Bu bilgisayarın %1 cihazıyla ilişkisini kaldırmak istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>Domain name, IP address or Bridgeway ID</source>
        <extracomment>509 title_ip_detail</extracomment>
        <translation>Etki alanı adı, IP adresi veya Bridgeway kimliği</translation>
    </message>
    <message>
        <source>Sync extended attributes and permissions</source>
        <extracomment>511 selective_enable_entire_attribute_check</extracomment>
        <translation>Genişletilmiş öznitelikleri ve izinleri eşitle</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <extracomment>512 err_user_name_empty</extracomment>
        <translation>Lütfen kullanıcı adınızı girin.</translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>513 manage_share_tab_name</extracomment>
        <translation>Klasörler</translation>
    </message>
    <message>
        <source>This computer</source>
        <extracomment>514 title_chart_local</extracomment>
        <translation>Bu bilgisayar</translation>
    </message>
    <message>
        <source>Sharing</source>
        <extracomment>515 title_bubble_sharing</extracomment>
        <translation>Paylaşım</translation>
    </message>
    <message>
        <source>Connect through Bridgeway</source>
        <extracomment>517 use_bridgeway</extracomment>
        <translation>Bridgeway üzerinden bağlan</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications (you will need to restart your computer)</source>
        <extracomment>518 msi_filesinuse_dlg_closenone</extracomment>
        <translation>Uygulamalar kapatıl&amp;masın (bilgisayarın yeniden başlatılması gerekecek)</translation>
    </message>
    <message>
        <source>Larkmoor Drive is ready.</source>
        <extracomment>519 desc_lkmr_env_preparation_done</extracomment>
        <translation>Larkmoor Drive hazır.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <extracomment>520 msi_button_no</extracomment>
        <translation>&amp;Hayır</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <extracomment>522 block_file_table_title</extracomment>
        <translation>Dışlanan Dosyalar</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>523 history_file</extracomment>
        <translation>Dosya</translation>
    </message>
</context>
</TS>
