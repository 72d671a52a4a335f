<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Searching for NAS devices on your local network...</source>
        <extracomment>0 local_hb_search</extracomment>
        <translation>ローカルネットワーク上の NAS を検索しています...</translation>
    </message>
    <message>
        <source>April</source>
        <extracomment>1 month_apr</extracomment>
        <translation>4月</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be uploaded to the NAS.</source>
        <extracomment>2 read_only_tooltip</extracomment>
        <translation>このフォルダーへのアクセス権は読み取り専用です。このコンピューターで行った変更は NAS にアップロードされません。</translation>
    </message>
    <message>
        <source>Choose the folders, sync direction and file filters yourself (recommended for experienced users)&#x200b;.</source>
        <extracomment>3 wizard_setup_advan_mode_desc</extracomment>
        <translation>フォルダー、同期方向、ファイルフィルターを自分で選択します (上級ユーザーに推奨)。</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>4 history_from</extracomment>
        <translation>開始日</translation>
    </message>
    <message>
        <source>Do you want to stop the installation of [ProductName]?</source>
        <extracomment>5 msi_cancel_dlg_text</extracomment>
        <translation>[ProductName] のインストールを中止しますか?</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <extracomment>6 msi_welcome_dlg_title, 80 msi_readyremove_dlg_title, 99 msi_maintenance_welcome_dlg_title, 242 msi_error_dlg_title, 256 msi_userexit_dlg_title, 276 msi_fatalerror_dlg_title, 277 msi_eula_dlg_title, 345 msi_filesinuse_dlg_title, 356 msi_maintenance_dlg_title, 425 msi_exit_dlg_title, 441 msi_progress_dlg_title, 456 msi_readyrepair_dlg_title, 488 msi_ready_dlg_title, 492 msi_cancel_dlg_title</extracomment>
        <translation>[ProductName] セットアップ</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>7 col_file_action, 505 history_action</extracomment>
        <translation>操作</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <extracomment>8 msi_welcome_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] セットアップウィザードへようこそ</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <extracomment>9 msi_exit_dlg_description, 297 msi_userexit_dlg_description2, 445 msi_exit_dlg_text, 461 msi_fatalerror_dlg_description2</extracomment>
        <translation>セットアップウィザードを終了するには、「完了」をクリックしてください。</translation>
    </message>
    <message>
        <source>Unable to reach the network. Please check your network connection and try again.</source>
        <extracomment>10 err_network</extracomment>
        <translation>ネットワークに接続できません。ネットワーク接続を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>One-way download</source>
        <extracomment>11 one_way_sync_download, 349 one_way_download</extracomment>
        <translation>一方向ダウンロード</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>12 btn_help</extracomment>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Sync is enabled for this folder.</source>
        <extracomment>13 share_enabled</extracomment>
        <translation>このフォルダーの同期は有効です。</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <extracomment>14 common_forminvalid</extracomment>
        <translation>無効な値が入力されている項目があります。続行する前に修正してください。</translation>
    </message>
    <message>
        <source>Currently syncing</source>
        <extracomment>15 tray_current_syncing</extracomment>
        <translation>現在同期中</translation>
    </message>
    <message>
        <source>The Bridgeway service is temporarily unavailable. Please try again later.</source>
        <extracomment>16 err_autoconn_sys</extracomment>
        <translation>Bridgeway サービスは一時的に利用できません。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <extracomment>17 conn_mode_direct</extracomment>
        <translation>直接接続</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. Please check the certificate or contact the NAS administrator.</source>
        <extracomment>18 wizard_ssl_verify_fail_sync_folder_warning, 521 err_ssl_verify_fail</extracomment>
        <translation>NAS の SSL 証明書を検証できませんでした。証明書を確認するか、NAS の管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <extracomment>19 msi_button_exit</extracomment>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>Syncing of &quot;%1&quot; has stopped because of an error. Click here for details.</source>
        <extracomment>20 notify_abnormal</extracomment>
        <translation>エラーのため「%1」の同期が停止しました。詳細を表示するには、ここをクリックしてください。</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please try again.</source>
        <extracomment>21 msg_test_username_fail</extracomment>
        <translation>ユーザー名またはパスワードが正しくありません。もう一度お試しください。</translation>
    </message>
    <message>
        <source>This folder cannot be used as a sync folder. Please choose another one.</source>
        <extracomment>22 wizard_invalid_sync_folder_warning</extracomment>
        <translation>このフォルダーは同期フォルダーとして使用できません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Larkmoor Drive will keep the following folder in sync with your NAS:</source>
        <extracomment>23 quick_mode_finish_page_desc</extracomment>
        <translation>Larkmoor Drive は、次のフォルダーを NAS と常に同期します:</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <extracomment>24 manage_proxy_chk_manual</extracomment>
        <translation>プロキシを手動で設定する</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <extracomment>25 err_auth_short, 238 status_desc_auth_short</extracomment>
        <translation>認証に失敗しました</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <extracomment>26 status_desc_version_short</extracomment>
        <translation>サポートされていないバージョンです</translation>
    </message>
    <message>
        <source>October</source>
        <extracomment>27 month_oct</extracomment>
        <translation>10月</translation>
    </message>
    <message>
        <source>Computer name</source>
        <extracomment>28 col_computer_name</extracomment>
        <translation>コンピューター名</translation>
    </message>
    <message>
        <source>Saturday</source>
        <extracomment>29 saturday</extracomment>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <extracomment>30 unlink_connection</extracomment>
        <translation>接続のリンクを解除</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <extracomment>31 manage_proxy_server_ip</extracomment>
        <translation>プロキシサーバーのアドレス</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Remove [ProductName]</source>
        <extracomment>32 msi_readyremove_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont][ProductName] を削除する準備ができました</translation>
    </message>
    <message>
        <source>This wizard lets you change, repair or remove [ProductName]. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <extracomment>33 msi_maintenance_welcome_dlg_description</extracomment>
        <translation>このウィザードでは、[ProductName] の変更、修復、または削除を行うことができます。続行するには「次へ」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>34 history_upload</extracomment>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <extracomment>35 manage_proxy_chk_account</extracomment>
        <translation>プロキシサーバーで認証が必要</translation>
    </message>
    <message>
        <source>Choose a Setup Mode</source>
        <extracomment>36 wizard_setup_mode_page_title</extracomment>
        <translation>セットアップモードの選択</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>37 desc_inactive, 292 title_inactive</extracomment>
        <translation>非アクティブ</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Files will be downloaded to this computer, but local changes will not be uploaded.</source>
        <extracomment>38 wizard_readonly_sync_folder_warning</extracomment>
        <translation>このフォルダーへのアクセス権は読み取り専用です。ファイルはこのコンピューターにダウンロードされますが、ローカルでの変更はアップロードされません。</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <extracomment>39 manage_setting_applying</extracomment>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Loading...</source>
        <extracomment>40 loading</extracomment>
        <translation>読み込んでいます...</translation>
    </message>
    <message>
        <source>Pause Connection</source>
        <extracomment>41 pause_connection</extracomment>
        <translation>接続を一時停止</translation>
    </message>
    <message>
        <source>The text cannot be longer than %1 characters.</source>
        <extracomment>42 common_maxlengthtext</extracomment>
        <translation>%1 文字を超えるテキストは入力できません。</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>43 err_short, 77 title_folder_readonly, 449 err_common</extracomment>
        <translation>エラー</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <extracomment>44 time_hour_ago</extracomment>
        <translation>%1 時間前</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <extracomment>45 common_fieldblank</extracomment>
        <translation>この項目は必ず入力してください。</translation>
    </message>
    <message>
        <source>A system error occurred while accessing this folder. Please try again later.</source>
        <extracomment>46 wizard_system_err_sync_folder_warning</extracomment>
        <translation>このフォルダーへのアクセス中にシステムエラーが発生しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Is Complete</source>
        <extracomment>47 msi_exit_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] のセットアップが完了しました</translation>
    </message>
    <message>
        <source>June</source>
        <extracomment>48 month_jun</extracomment>
        <translation>6月</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>49 tray_resume, 262 session_resume_btn</extracomment>
        <translation>再開</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>50 msg_disabled</extracomment>
        <translation>無効</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to [ProductName] Maintenance</source>
        <extracomment>51 msi_maintenance_welcome_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] のメンテナンスへようこそ</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>52 history_customize</extracomment>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>This computer is already linked to %1. Linking it to the same NAS again may cause file conflicts. Do you want to continue?</source>
        <extracomment>53 wizard_setup_repeat_warning2</extracomment>
        <translation>このコンピューターはすでにこの NAS にリンクされています。同じ NAS に再度リンクすると、ファイルの競合が発生する可能性があります。続行しますか?</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>54 btn_shareitem_delete</extracomment>
        <translation>削除</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>55 version</extracomment>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <extracomment>56 btn_choseother</extracomment>
        <translation>別のフォルダーを選択</translation>
    </message>
    <message>
        <source>Please review the settings below, and then click Finish to start syncing.</source>
        <extracomment>57 msg_info_description</extracomment>
        <translation>以下の設定を確認し、「完了」をクリックして同期を開始してください。</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <extracomment>58 conflict_policy_compare_mtime</extracomment>
        <translation>最後に更新されたバージョンを残す</translation>
    </message>
    <message>
        <source>Date created</source>
        <extracomment>59 col_create_time</extracomment>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <extracomment>60 time_day_ago</extracomment>
        <translation>%1 日前</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <extracomment>61 err_invalid_port_number</extracomment>
        <translation>ポート番号は 1 から 65535 までの値で指定してください。</translation>
    </message>
    <message>
        <source>Sync History</source>
        <extracomment>62 history_page_title</extracomment>
        <translation>同期履歴</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <extracomment>63 btn_edit_connection</extracomment>
        <translation>接続を編集</translation>
    </message>
    <message>
        <source>Friday</source>
        <extracomment>64 friday</extracomment>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Destination</source>
        <extracomment>65 col_file_destination</extracomment>
        <translation>保存先</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Please confirm the new certificate to resume syncing.</source>
        <extracomment>66 err_ssl_change, 348 wizard_ssl_change_sync_folder_warning</extracomment>
        <translation>NAS の SSL 証明書が変更されました。同期を再開するには、新しい証明書を確認してください。</translation>
    </message>
    <message>
        <source>The folders that you have deselected will be permantely removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <extracomment>67 selective_sync_remove_msg</extracomment>
        <translation>選択を解除したフォルダーは、このコンピューターから完全に削除されます。NAS 上のコピーは保持されます。続行しますか?</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <extracomment>68 selective_sync, 71 session_selective_sync_btn</extracomment>
        <translation>選択同期</translation>
    </message>
    <message>
        <source>Open Larkmoor Drive</source>
        <extracomment>69 open_main_app, 145 title_open_larkmoor</extracomment>
        <translation>Larkmoor Drive を開く</translation>
    </message>
    <message>
        <source>File filters</source>
        <extracomment>70 file_selective_sync</extracomment>
        <translation>ファイルフィルター</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <extracomment>72 msi_button_finish</extracomment>
        <translation>完了(&amp;F)</translation>
    </message>
    <message>
        <source>File name</source>
        <extracomment>73 history_file_name, 285 col_file_name</extracomment>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>File names that begin with a period (.)</source>
        <extracomment>74 block_point_prefix</extracomment>
        <translation>ピリオド (.) で始まるファイル名</translation>
    </message>
    <message>
        <source>Files with these names will not be synced. Separate the names with semicolons.</source>
        <extracomment>75 block_file_name_tool_tip</extracomment>
        <translation>これらの名前のファイルは同期されません。複数の名前はセミコロンで区切ってください。</translation>
    </message>
    <message>
        <source>Uploading</source>
        <extracomment>76 label_uploading</extracomment>
        <translation>アップロード中</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer. Larkmoor Drive will keep them in sync.</source>
        <extracomment>78 wizard_new_sync_folder_desc</extracomment>
        <translation>NAS 上のフォルダーとこのコンピューター上のフォルダーを選択してください。Larkmoor Drive が 2 つのフォルダーを常に同期します。</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Larkmoor Drive will be installed for your user account only. Do you want to continue?</source>
        <extracomment>79 NSIS_NOT_ADMIN_CONFIRM</extracomment>
        <translation>管理者としてサインインしていません。Larkmoor Drive は、お使いのユーザーアカウントにのみインストールされます。続行しますか?</translation>
    </message>
    <message>
        <source>The sync service is disabled for your account. Please contact the NAS administrator.</source>
        <extracomment>81 err_orlaqdisable</extracomment>
        <translation>お使いのアカウントでは同期サービスが無効になっています。NAS の管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>This is not the NAS that was originally linked. Please check the address or set up a new connection.</source>
        <extracomment>82 err_hb_not_match</extracomment>
        <translation>これは最初にリンクした NAS ではありません。アドレスを確認するか、新しい接続を設定してください。</translation>
    </message>
    <message>
        <source>You do not have permission to share this file. Please contact the NAS administrator.</source>
        <extracomment>83 sharing_restrict</extracomment>
        <translation>このファイルを共有する権限がありません。NAS の管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>84 manage_option_tab_name</extracomment>
        <translation>全般</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <extracomment>85 manage_setting_not_save</extracomment>
        <translation>変更内容が保存されていません。破棄しますか?</translation>
    </message>
    <message>
        <source>Username</source>
        <extracomment>86 title_usr, 92 manage_proxy_label_username</extracomment>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Manage</source>
        <extracomment>87 btn_manage</extracomment>
        <translation>管理</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove [ProductName] from this computer.</source>
        <extracomment>88 msi_readyremove_dlg_description</extracomment>
        <translation>セットアップウィザードは、このコンピューターから [ProductName] を削除する準備ができました。</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>89 history_folder</extracomment>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>There are no folders available to sync.</source>
        <extracomment>90 no_valid_folder</extracomment>
        <translation>同期できるフォルダーがありません。</translation>
    </message>
    <message>
        <source>Local folder</source>
        <extracomment>91 manage_share_local_syncfolder</extracomment>
        <translation>ローカルフォルダー</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <extracomment>93 wizard_setup_advan_mode_title</extracomment>
        <translation>詳細セットアップ</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>94 status_desc_pause, 269 tray_status_paused</extracomment>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Welcome to Larkmoor Drive</source>
        <extracomment>95 title_welcome</extracomment>
        <translation>Larkmoor Drive へようこそ</translation>
    </message>
    <message>
        <source>Folder selection</source>
        <extracomment>96 folder_selective_sync</extracomment>
        <translation>フォルダーの選択</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in a few clicks. All your files will be synced to a single folder with the recommended settings.</source>
        <extracomment>97 wizard_setup_quick_mode_desc</extracomment>
        <translation>数回のクリックで、このコンピューターを NAS にリンクできます。すべてのファイルが、推奨設定で 1 つのフォルダーに同期されます。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <extracomment>98 tray_opendir, 415 open_folder</extracomment>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <extracomment>100 manage_option_synchronization_mode</extracomment>
        <translation>同期方向</translation>
    </message>
    <message>
        <source>Add a sync folder to an existing connection</source>
        <extracomment>101 wizard_sync_folder_new_session</extracomment>
        <translation>既存の接続に同期フォルダーを追加</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <extracomment>102 advan_setup_wizard</extracomment>
        <translation>詳細セットアップウィザード</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <extracomment>103 context_menu_filter_folders</extracomment>
        <translation>これらのフォルダーを同期しない</translation>
    </message>
    <message>
        <source>A new version of Larkmoor Drive is available. Click here to update.</source>
        <extracomment>104 tray_click_to_update</extracomment>
        <translation>Larkmoor Drive の新しいバージョンが利用可能です。更新するには、ここをクリックしてください。</translation>
    </message>
    <message>
        <source>A newer version of Larkmoor Drive is already installed. To install this version, please uninstall the current version first.</source>
        <extracomment>105 NSIS_LARKMOOR_INSTALLED_NEWER</extracomment>
        <translation>より新しいバージョンの Larkmoor Drive がすでにインストールされています。このバージョンをインストールするには、先に現在のバージョンをアンインストールしてください。</translation>
    </message>
    <message>
        <source>A different NAS has been found at this address. Please link this computer again.</source>
        <extracomment>106 status_desc_hb_changed</extracomment>
        <translation>このアドレスで別の NAS が見つかりました。このコンピューターをもう一度リンクしてください。</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <extracomment>107 manage_option_merge_mode</extracomment>
        <translation>統合モード</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>108 btn_cancel, 241 management_proxy_cancel_btn, 496 msi_button_cancel</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>To use selective sync, please update Larkmoor Server on your NAS.</source>
        <extracomment>109 update_pkg_for_selective_sync</extracomment>
        <translation>選択同期を使用するには、NAS 上の Larkmoor Server を更新してください。</translation>
    </message>
    <message>
        <source>Files that match the following names or extensions will not be synced.</source>
        <extracomment>110 black_list_desc</extracomment>
        <translation>次の名前または拡張子に一致するファイルは同期されません。</translation>
    </message>
    <message>
        <source>Choose the folders on the NAS that you want to sync to this computer.</source>
        <extracomment>111 advan_mode_set_share_folder_info</extracomment>
        <translation>このコンピューターと同期する NAS 上のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Everything you put into this folder is synced to your NAS and to all your linked computers.</source>
        <extracomment>112 tutorial_first_desc</extracomment>
        <translation>このフォルダーに保存したものはすべて、NAS と、リンク済みのすべてのコンピューターに同期されます。</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <extracomment>113 title_conn_mode</extracomment>
        <translation>接続モード</translation>
    </message>
    <message>
        <source>ID</source>
        <extracomment>114 title_id, 464 col_id</extracomment>
        <translation>ID</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been reached. Please free up some space or contact the NAS administrator.</source>
        <extracomment>115 msg_share_quotafull</extracomment>
        <translation>共有フォルダー「%1」のクォータの上限に達しました。空き容量を増やすか、NAS の管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <extracomment>116 manage_proxy_title</extracomment>
        <translation>プロキシ設定</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <extracomment>117 manage_option_sync_mode</extracomment>
        <translation>同期モード</translation>
    </message>
    <message>
        <source>Summary</source>
        <extracomment>118 msg_info</extracomment>
        <translation>概要</translation>
    </message>
    <message>
        <source>Connection Already Exists</source>
        <extracomment>119 wizard_setup_repeat_warning_title</extracomment>
        <translation>接続はすでに存在します</translation>
    </message>
    <message>
        <source>Folder name</source>
        <extracomment>120 folder_name</extracomment>
        <translation>フォルダー名</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <extracomment>121 two_way_sync</extracomment>
        <translation>双方向同期</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <extracomment>122 msi_maintenance_dlg_change_tooltip</extracomment>
        <translation>インストール内容を変更します</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS. Please contact the NAS administrator.</source>
        <extracomment>123 err_user_home_disabled</extracomment>
        <translation>NAS のホームフォルダーサービスが無効になっています。NAS の管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Install [ProductName]</source>
        <extracomment>124 msi_ready_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont][ProductName] をインストールする準備ができました</translation>
    </message>
    <message>
        <source>March</source>
        <extracomment>125 month_mar</extracomment>
        <translation>3月</translation>
    </message>
    <message>
        <source>Your files, wherever you are</source>
        <extracomment>126 msg_slogan</extracomment>
        <translation>どこにいても、ファイルはいつも手元に</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License Agreement</source>
        <extracomment>127 msi_eula_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]使用許諾契約書</translation>
    </message>
    <message>
        <source>Get link</source>
        <extracomment>128 context_menu_share_link</extracomment>
        <translation>リンクを取得</translation>
    </message>
    <message>
        <source>Valid from</source>
        <extracomment>129 sharing_enable_start_at</extracomment>
        <translation>有効期間の開始日</translation>
    </message>
    <message>
        <source>February</source>
        <extracomment>130 month_feb</extracomment>
        <translation>2月</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <extracomment>131 err_version_short</extracomment>
        <translation>互換性のないバージョンです</translation>
    </message>
    <message>
        <source>The network connection is unstable.</source>
        <extracomment>132 tray_unstable</extracomment>
        <translation>ネットワーク接続が不安定です。</translation>
    </message>
    <message>
        <source>Do not sync the following files:</source>
        <extracomment>133 file_black_list_label</extracomment>
        <translation>次のファイルを同期しない:</translation>
    </message>
    <message>
        <source>Linking...</source>
        <extracomment>134 msg_linking, 308 status_desc_linking</extracomment>
        <translation>リンクしています...</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed because an error occurred. No changes have been made to your computer. To try again later, please run the installer again.</source>
        <extracomment>135 msi_fatalerror_dlg_description1</extracomment>
        <translation>エラーが発生したため、[ProductName] をインストールできませんでした。コンピューターに変更は加えられていません。後でインストールする場合は、インストーラーをもう一度実行してください。</translation>
    </message>
    <message>
        <source>Download only</source>
        <extracomment>136 download_only</extracomment>
        <translation>ダウンロードのみ</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists on this computer. Do you want to merge it with the folder on the NAS?</source>
        <extracomment>137 msg_mergefolder</extracomment>
        <translation>フォルダー「%1」はこのコンピューターにすでに存在します。NAS 上のフォルダーと統合しますか?</translation>
    </message>
    <message>
        <source>Just now</source>
        <extracomment>138 time_just_now</extracomment>
        <translation>たった今</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <extracomment>139 conflict_policy_rename_conflict</extracomment>
        <translation>両方のバージョンを残し、古い方の名前を変更する</translation>
    </message>
    <message>
        <source>Please read the following License Agreement carefully.</source>
        <extracomment>140 msi_eula_dlg_description</extracomment>
        <translation>次の使用許諾契約書をよくお読みください。</translation>
    </message>
    <message>
        <source>Find a NAS on your local network</source>
        <extracomment>141 wizard_find_local_hb_tooltip</extracomment>
        <translation>ローカルネットワーク上の NAS を検索</translation>
    </message>
    <message>
        <source>Recently Changed Files</source>
        <extracomment>142 recently_changed_title</extracomment>
        <translation>最近変更されたファイル</translation>
    </message>
    <message>
        <source>Unable to enable sync for the folder &quot;%1&quot;. Please try again.</source>
        <extracomment>143 err_share_fail_enable</extracomment>
        <translation>フォルダー「%1」の同期を有効にできません。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Finish</source>
        <extracomment>144 finish</extracomment>
        <translation>完了</translation>
    </message>
    <message>
        <source>Enter your 6-digit verification code</source>
        <extracomment>146 connection_enter_otp</extracomment>
        <translation>6 桁の確認コードを入力してください</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <extracomment>147 sharing_link</extracomment>
        <translation>共有リンク</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <extracomment>148 next_x_pages</extracomment>
        <translation>次の %1 ページ</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <extracomment>149 msg_test_connect</extracomment>
        <translation>接続をテストしています...</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <extracomment>150 msg_language_restart</extracomment>
        <translation>新しい言語設定を適用するには、%1 を再起動してください。</translation>
    </message>
    <message>
        <source>You can open Larkmoor Drive at any time from its tray icon.</source>
        <extracomment>151 msg_finish_way</extracomment>
        <translation>Larkmoor Drive は、トレイアイコンからいつでも開くことができます。</translation>
    </message>
    <message>
        <source>Rename</source>
        <extracomment>152 history_rename</extracomment>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <extracomment>153 msi_button_next</extracomment>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>154 yes</extracomment>
        <translation>はい</translation>
    </message>
    <message>
        <source>Folder path</source>
        <extracomment>155 title_folderpath</extracomment>
        <translation>フォルダーのパス</translation>
    </message>
    <message>
        <source>An unknown issue has occurred, please restart Larkmoor Drive.</source>
        <extracomment>156 msg_error</extracomment>
        <translation>不明な問題が発生しました。Larkmoor Drive を再起動してください。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <extracomment>157 read_only</extracomment>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <extracomment>158 manage_option_use_black_white_icon</extracomment>
        <translation>モノクロのトレイアイコンを使用する</translation>
    </message>
    <message>
        <source>Resume Connection</source>
        <extracomment>159 resume_connection</extracomment>
        <translation>接続を再開</translation>
    </message>
    <message>
        <source>May</source>
        <extracomment>160 month_may</extracomment>
        <translation>5月</translation>
    </message>
    <message>
        <source>Larkmoor Drive is starting...</source>
        <extracomment>161 msg_startup</extracomment>
        <translation>Larkmoor Drive を起動しています...</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>162 msi_readyrepair_dlg_text</extracomment>
        <translation>[ProductName] のインストールを修復するには、「修復」をクリックしてください。設定を確認するには「戻る」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Repair [ProductName]</source>
        <extracomment>163 msi_readyrepair_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont][ProductName] を修復する準備ができました</translation>
    </message>
    <message>
        <source>Unable to reach the Bridgeway server. Please check your network connection and try again.</source>
        <extracomment>164 err_autoconn_ctrl</extracomment>
        <translation>Bridgeway サーバーに接続できません。ネットワーク接続を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The contents of both folders will be combined. Files that exist in both folders will be handled according to your conflict policy.</source>
        <extracomment>165 info_mergefolder</extracomment>
        <translation>両方のフォルダーの内容が統合されます。両方のフォルダーに存在するファイルは、競合ポリシーに従って処理されます。</translation>
    </message>
    <message>
        <source>Unable to resolve a conflict for the file &quot;%1&quot;.</source>
        <extracomment>166 err_conflict</extracomment>
        <translation>ファイル「%1」の競合を解決できません。</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <extracomment>167 selective_sync_loading</extracomment>
        <translation>フォルダーの一覧を読み込んでいます...</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this sync folder? Your files on the NAS and on this computer will be kept.</source>
        <extracomment>168 msg_shareitem_delete</extracomment>
        <translation>この同期フォルダーを削除しますか? NAS とこのコンピューターにあるファイルは保持されます。</translation>
    </message>
    <message>
        <source>Verifying your account...</source>
        <extracomment>169 msg_checkpass</extracomment>
        <translation>アカウントを確認しています...</translation>
    </message>
    <message>
        <source>Your version of Larkmoor Drive is too old for this NAS. Please update Larkmoor Drive and try again.</source>
        <extracomment>170 err_version_client</extracomment>
        <translation>お使いの Larkmoor Drive のバージョンは古いため、この NAS では使用できません。Larkmoor Drive を更新してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty. Its contents will be merged with the folder on the NAS.</source>
        <extracomment>171 msg_folder_not_empty</extracomment>
        <translation>フォルダー「%1」は空ではありません。内容は NAS 上のフォルダーと統合されます。</translation>
    </message>
    <message>
        <source>Unable to create a sharing link. Please try again later.</source>
        <extracomment>172 err_orlaq_share_link</extracomment>
        <translation>共有リンクを作成できません。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <extracomment>173 msi_button_remove</extracomment>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Expires on</source>
        <extracomment>174 sharing_enable_expire_at</extracomment>
        <translation>有効期限</translation>
    </message>
    <message>
        <source>Expires after</source>
        <extracomment>175 sharing_exp_after</extracomment>
        <translation>有効期間</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <extracomment>176 manage_share_title</extracomment>
        <translation>同期フォルダー</translation>
    </message>
    <message>
        <source>Click Remove to uninstall [ProductName]. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>177 msi_readyremove_dlg_text</extracomment>
        <translation>[ProductName] をアンインストールするには、「削除」をクリックしてください。設定を確認するには「戻る」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>178 col_time, 273 history_time</extracomment>
        <translation>日時</translation>
    </message>
    <message>
        <source>File names:</source>
        <extracomment>179 block_file_name_label</extracomment>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>The volume that holds the sync folder &quot;%1&quot; is not mounted. Please mount it to resume syncing.</source>
        <extracomment>180 err_syncfolder_not_mounted</extracomment>
        <translation>同期フォルダー「%1」があるボリュームがマウントされていません。同期を再開するには、ボリュームをマウントしてください。</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <extracomment>181 manage_proxy_chk_sys_proxy</extracomment>
        <translation>システムのプロキシ設定を使用する</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <extracomment>182 manage_share_enable</extracomment>
        <translation>同期を有効にする</translation>
    </message>
    <message>
        <source>You do not have permission to download this file.</source>
        <extracomment>183 desc_cannot_download</extracomment>
        <translation>このファイルをダウンロードする権限がありません。</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <extracomment>184 notify_new_share_short</extracomment>
        <translation>新しい共有フォルダー</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <extracomment>185 file_ext_label</extracomment>
        <translation>ファイルの拡張子:</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;? Your files on the NAS and on this computer will be kept.</source>
        <extracomment>186 session_unlink_confirm_msg</extracomment>
        <translation>「%1」の同期を停止しますか? NAS とこのコンピューターにあるファイルは保持されます。</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>187 col_file_size</extracomment>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Status:</source>
        <extracomment>188 msi_progress_dlg_status_label</extracomment>
        <translation>状態:</translation>
    </message>
    <message>
        <source>%1 upgrade failed (error code: %2).</source>
        <extracomment>189 wizard_client_upgrade_failed</extracomment>
        <translation>%1 のアップグレードに失敗しました (エラーコード: %2)。</translation>
    </message>
    <message>
        <source>Unlink</source>
        <extracomment>190 action_unlink, 338 session_unlink_btn</extracomment>
        <translation>リンク解除</translation>
    </message>
    <message>
        <source>SSL Certificate Warning</source>
        <extracomment>191 title_ssl_warning</extracomment>
        <translation>SSL 証明書の警告</translation>
    </message>
    <message>
        <source>A connection to this NAS already exists on this computer.</source>
        <extracomment>192 wizard_setup_repeat_warning_desc</extracomment>
        <translation>このコンピューターには、この NAS への接続がすでに存在します。</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS to upload &quot;%1&quot;.</source>
        <extracomment>193 msg_diskfull</extracomment>
        <translation>NAS の空き容量が不足しているため、「%1」をアップロードできません。</translation>
    </message>
    <message>
        <source>Please enter your verification code.</source>
        <extracomment>194 err_otp_required</extracomment>
        <translation>確認コードを入力してください。</translation>
    </message>
    <message>
        <source>Choose Which Files to Sync</source>
        <extracomment>195 selective_sync_file_title</extracomment>
        <translation>同期するファイルの選択</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>196 tray_exit</extracomment>
        <translation>終了</translation>
    </message>
    <message>
        <source>Please confirm the folders to be synced.</source>
        <extracomment>197 wizard_set_sync_folder_desc</extracomment>
        <translation>同期するフォルダーを確認してください。</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <extracomment>198 msg_welcome</extracomment>
        <translation>ようこそ!</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <extracomment>199 msg_seldir</extracomment>
        <translation>フォルダーの選択</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another one.</source>
        <extracomment>200 wizard_access_deny_sync_folder_warning</extracomment>
        <translation>このフォルダーにアクセスする権限がありません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Updating...</source>
        <extracomment>201 tray_updating</extracomment>
        <translation>更新しています...</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <extracomment>202 manage_share_change_folder</extracomment>
        <translation>フォルダーを変更</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>203 title_value</extracomment>
        <translation>値</translation>
    </message>
    <message>
        <source>Larkmoor is already installed. To install this version, please uninstall the current version first</source>
        <extracomment>204 NSIS_LARKMOOR_INSTALLED_CURRENT</extracomment>
        <translation>Larkmoor はすでにインストールされています。このバージョンをインストールするには、先に現在のバージョンをアンインストールしてください</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to install [ProductName] on this computer.</source>
        <extracomment>205 msi_ready_dlg_description</extracomment>
        <translation>セットアップウィザードは、このコンピューターに [ProductName] をインストールする準備ができました。</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>206 title_name</extracomment>
        <translation>名前</translation>
    </message>
    <message>
        <source>Add Sync Folder</source>
        <extracomment>207 session_add_btn</extracomment>
        <translation>同期フォルダーを追加</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <extracomment>208 open_sync_status</extracomment>
        <translation>同期状態を表示</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Failed</source>
        <extracomment>209 msi_fatalerror_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] のセットアップに失敗しました</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <extracomment>210 manage_setting_no_change</extracomment>
        <translation>変更された設定はありません。</translation>
    </message>
    <message>
        <source>SSL</source>
        <extracomment>211 title_ssl_enable</extracomment>
        <translation>SSL</translation>
    </message>
    <message>
        <source>You can open Larkmoor Drive at any time to sync more folders or change the sync settings.</source>
        <extracomment>212 quick_mode_finish_page_more_detail</extracomment>
        <translation>Larkmoor Drive はいつでも開くことができ、同期するフォルダーを追加したり、同期の設定を変更したりできます。</translation>
    </message>
    <message>
        <source>Maximum number of downloads</source>
        <extracomment>213 sharing_enable_expire_times</extracomment>
        <translation>最大ダウンロード回数</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>214 history_download</extracomment>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>215 history_date</extracomment>
        <translation>日付</translation>
    </message>
    <message>
        <source>This computer is already linked to this NAS.</source>
        <extracomment>216 err_link_same_hb</extracomment>
        <translation>このコンピューターはすでにこの NAS にリンクされています。</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <extracomment>217 manage_proxy_chk_no_proxy</extracomment>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>The version of Larkmoor Server on the NAS is too old. Please update it and try again.</source>
        <extracomment>218 err_version_server</extracomment>
        <translation>NAS 上の Larkmoor Server のバージョンが古すぎます。更新してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>How would you like to set up Larkmoor Drive?</source>
        <extracomment>219 wizard_setup_mode_page_desc</extracomment>
        <translation>Larkmoor Drive をどのようにセットアップしますか?</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>220 history_keyword</extracomment>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Download History</source>
        <extracomment>221 main_download_history</extracomment>
        <translation>ダウンロード履歴</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <extracomment>222 manage_option_enable_icon_overlay</extracomment>
        <translation>ファイルとフォルダーに同期状態アイコンを表示する</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>223 msi_ready_dlg_text</extracomment>
        <translation>インストールを開始するには、「インストール」をクリックしてください。設定を確認するには「戻る」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>The download has been canceled.</source>
        <extracomment>224 msg_download_aborted</extracomment>
        <translation>ダウンロードがキャンセルされました。</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <extracomment>225 title_folder_nonempty</extracomment>
        <translation>フォルダーが空ではありません</translation>
    </message>
    <message>
        <source>Choose which features of [ProductName] are installed on this computer.</source>
        <extracomment>226 msi_maintenance_dlg_change_text</extracomment>
        <translation>このコンピューターにインストールする [ProductName] の機能を選択します。</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS has been reached. Please free up some space or contact the NAS administrator.</source>
        <extracomment>227 wizard_quotafull_sync_folder_warning, 271 status_desc_quotafull</extracomment>
        <translation>NAS のストレージクォータの上限に達しました。空き容量を増やすか、NAS の管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>228 btn_ok, 516 msi_button_ok</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open My Folder</source>
        <extracomment>229 quick_mode_open_folder_btn</extracomment>
        <translation>マイフォルダーを開く</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <extracomment>230 dont_show_msg</extracomment>
        <translation>今後このメッセージを表示しない</translation>
    </message>
    <message>
        <source>Sync will be disabled for this folder, and its files will be permantely removed from this computer. The copies on the NAS will be kept.</source>
        <extracomment>231 share_enable_remove_msg</extracomment>
        <translation>このフォルダーの同期は無効になり、フォルダー内のファイルはこのコンピューターから完全に削除されます。NAS 上のコピーは保持されます。</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <extracomment>232 msi_button_ignore</extracomment>
        <translation>無視(&amp;I)</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard configures [ProductName].  This may take several minutes.</source>
        <extracomment>233 msi_progress_dlg_text, 344 msi_progress_dlg_description</extracomment>
        <translation>セットアップウィザードが [ProductName] を構成しています。しばらくお待ちください。これには数分かかることがあります。</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them afterwards</source>
        <extracomment>234 msi_filesinuse_dlg_closeall</extracomment>
        <translation>アプリケーションを閉じ、完了後に再起動する(&amp;C)</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>235 history_search</extracomment>
        <translation>検索</translation>
    </message>
    <message>
        <source>Your version of Larkmoor Drive is not up-to-date. Please update it to resume syncing.</source>
        <extracomment>236 status_desc_errversion_client</extracomment>
        <translation>お使いの Larkmoor Drive は最新バージョンではありません。同期を再開するには更新してください。</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Please check your network connection and try again.</source>
        <extracomment>237 wizard_network_err_sync_folder_warning</extracomment>
        <translation>NAS への接続が切断されました。ネットワーク接続を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The setup of [ProductName] was interrupted. No changes have been made to your computer. To install the program at another time, please run the installer again.</source>
        <extracomment>239 msi_userexit_dlg_description1</extracomment>
        <translation>[ProductName] のセットアップは中断されました。コンピューターに変更は加えられていません。後でプログラムをインストールする場合は、インストーラーをもう一度実行してください。</translation>
    </message>
    <message>
        <source>You Larkmoor Server package version is not up-to-date. Please update it to resume syncing.</source>
        <extracomment>240 status_desc_errversion_server</extracomment>
        <translation>お使いの Larkmoor Server パッケージは最新バージョンではありません。同期を再開するには更新してください。</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>243 status_desc_perm_short, 510 err_share_perm_short</extracomment>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Was Interrupted</source>
        <extracomment>244 msi_userexit_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] のセットアップは中断されました</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <extracomment>245 msi_readyrepair_dlg_description</extracomment>
        <translation>セットアップウィザードは、[ProductName] を修復する準備ができました。</translation>
    </message>
    <message>
        <source>Preparing</source>
        <extracomment>246 progress_preparing</extracomment>
        <translation>準備中</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <extracomment>247 history_items</extracomment>
        <translation>%1 個の項目</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <extracomment>248 msi_exit_dlg_launch</extracomment>
        <translation>今すぐ [ProductName] を起動する(&amp;S)</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <extracomment>249 general_setting_show_tutorial</extracomment>
        <translation>チュートリアルを表示する</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <extracomment>250 try_syncing</extracomment>
        <translation>同期を試みています...</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <extracomment>251 msi_button_repair</extracomment>
        <translation>修復(&amp;P)</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <extracomment>252 err_full_short</extracomment>
        <translation>空き容量が不足しています</translation>
    </message>
    <message>
        <source>Almost done</source>
        <extracomment>253 quick_mode_finish_page_title</extracomment>
        <translation>もうすぐ完了です</translation>
    </message>
    <message>
        <source>Failed to update Larkmoor database. Please restart or reinstall Larkmoor Drive to resume syncing.</source>
        <extracomment>254 upgrade_failed</extracomment>
        <translation>Larkmoor データベースを更新できませんでした。同期を再開するには、Larkmoor Drive を再起動または再インストールしてください。</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <extracomment>255 msi_button_print</extracomment>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>%1 file(s) updated</source>
        <extracomment>257 files_update</extracomment>
        <translation>%1 個のファイルが更新されました</translation>
    </message>
    <message>
        <source>Edit Excluded Files</source>
        <extracomment>258 black_list_btn</extracomment>
        <translation>除外ファイルを編集</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <extracomment>259 wednesday</extracomment>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Please free up some space to resume syncing.</source>
        <extracomment>260 status_desc_localdisk_full, 427 msg_localdiskfull</extracomment>
        <translation>このコンピューターの空き容量が不足しています。同期を再開するには、空き容量を増やしてください。</translation>
    </message>
    <message>
        <source>Sync</source>
        <extracomment>261 manage_sync_tab_name</extracomment>
        <translation>同期</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>263 session_pause_btn, 364 tray_pause</extracomment>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>The icons on your files and folders show whether they are up to date, syncing or not synced.</source>
        <extracomment>264 tutorial_second_desc</extracomment>
        <translation>ファイルやフォルダーに表示されるアイコンで、最新の状態か、同期中か、同期されていないかがわかります。</translation>
    </message>
    <message>
        <source>Easy connection</source>
        <extracomment>265 conn_mode_ez</extracomment>
        <translation>かんたん接続</translation>
    </message>
    <message>
        <source>Link again</source>
        <extracomment>266 tray_relink</extracomment>
        <translation>再リンク</translation>
    </message>
    <message>
        <source>Set Up Larkmoor Drive</source>
        <extracomment>267 wizard_welcome_title</extracomment>
        <translation>Larkmoor Drive のセットアップ</translation>
    </message>
    <message>
        <source>First page</source>
        <extracomment>268 first_page</extracomment>
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>Trust and Continue</source>
        <extracomment>270 btn_ssl_continue</extracomment>
        <translation>信頼して続行</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that you want to sync.</source>
        <extracomment>272 msg_seldir_description</extracomment>
        <translation>このコンピューター上の同期するフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <extracomment>274 context_menu_resume_folder</extracomment>
        <translation>このフォルダーを同期する</translation>
    </message>
    <message>
        <source>You can also right-click a file to browse its previous versions.</source>
        <extracomment>275 tutorial_third_desc_2</extracomment>
        <translation>ファイルを右クリックして、以前のバージョンを参照することもできます。</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder. Please choose another one.</source>
        <extracomment>278 msg_folder_mount_point</extracomment>
        <translation>マウントポイントは同期フォルダーとして使用できません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <extracomment>279 msg_share_bubble_suffix</extracomment>
        <translation>が共有されました。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>280 msg_enabled</extracomment>
        <translation>有効</translation>
    </message>
    <message>
        <source>Sync these folders</source>
        <extracomment>281 context_menu_resume_folders</extracomment>
        <translation>これらのフォルダーを同期する</translation>
    </message>
    <message>
        <source>Got It</source>
        <extracomment>282 got_it</extracomment>
        <translation>わかりました</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <extracomment>283 msi_maintenance_dlg_remove_tooltip</extracomment>
        <translation>インストールされたプログラムを削除します</translation>
    </message>
    <message>
        <source>Right-click a file and choose Get link to share it with others.</source>
        <extracomment>284 tutorial_third_desc</extracomment>
        <translation>他のユーザーと共有するには、ファイルを右クリックして「リンクを取得」を選択します。</translation>
    </message>
    <message>
        <source>Continue</source>
        <extracomment>286 btn_continue</extracomment>
        <translation>続行</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <extracomment>287 err_otp_invalid</extracomment>
        <translation>確認コードが正しくありません。もう一度お試しください。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, Repair or Remove [ProductName]</source>
        <extracomment>288 msi_maintenance_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont][ProductName] の変更、修復、または削除</translation>
    </message>
    <message>
        <source>This computer is now linked to %1.</source>
        <extracomment>289 wizard_finish_pairing_desc</extracomment>
        <translation>このコンピューターは %1 にリンクされました。</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are being synced.</source>
        <extracomment>290 quick_mode_end_msg</extracomment>
        <translation>セットアップが完了しました。ファイルを同期しています。</translation>
    </message>
    <message>
        <source>Show Larkmoor Drive in the context menu</source>
        <extracomment>291 manage_option_enable_context_menu</extracomment>
        <translation>コンテキストメニューに Larkmoor Drive を表示する</translation>
    </message>
    <message>
        <source>File deleted:</source>
        <extracomment>293 del</extracomment>
        <translation>ファイルの削除:</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Please check the address and port and try again.</source>
        <extracomment>294 err_proto</extracomment>
        <translation>NAS から予期しない応答がありました。アドレスとポートを確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Start Now</source>
        <extracomment>295 btn_start_now</extracomment>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>A secure connection to %1 could not be established.</source>
        <extracomment>296 msg_ssl_error</extracomment>
        <translation>%1 への安全な接続を確立できませんでした。</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>298 msi_maintenance_dlg_repair_label</extracomment>
        <translation>修復</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>299 label_downloading</extracomment>
        <translation>ダウンロード中</translation>
    </message>
    <message>
        <source>The NAS is indexing this folder. Please try again later.</source>
        <extracomment>300 tooltip_folder_indexing</extracomment>
        <translation>NAS がこのフォルダーのインデックスを作成しています。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>301 manage_proxy_label_password, 409 title_pwd</extracomment>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed. Do you want to trust the new certificate?</source>
        <extracomment>302 msg_ssl_change</extracomment>
        <translation>%1 の SSL 証明書が変更されました。新しい証明書を信頼しますか?</translation>
    </message>
    <message>
        <source>Do not sync files larger than %1 MB</source>
        <extracomment>303 file_max_size_limit</extracomment>
        <translation>%1 MB を超えるファイルを同期しない</translation>
    </message>
    <message>
        <source>All events</source>
        <extracomment>304 history_all_event</extracomment>
        <translation>すべてのイベント</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <extracomment>305 tray_syncing_file_cnt</extracomment>
        <translation>%1 個のファイルを処理しています...</translation>
    </message>
    <message>
        <source>Your account requires 2-step verification. Please set it up on the NAS first.</source>
        <extracomment>306 err_otp_enforced</extracomment>
        <translation>お使いのアカウントには 2 段階認証が必要です。先に NAS で設定してください。</translation>
    </message>
    <message>
        <source>Choose Which Folders to Sync</source>
        <extracomment>307 selective_sync_folder_title</extracomment>
        <translation>同期するフォルダーの選択</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; is complete.</source>
        <extracomment>309 msg_download_done</extracomment>
        <translation>「%1」のダウンロードが完了しました。</translation>
    </message>
    <message>
        <source>This computer is already linked to %1. Each connection to the same NAS needs a seperate sync folder.</source>
        <extracomment>310 wizard_setup_repeat_warning</extracomment>
        <translation>このコンピューターはすでにこの NAS にリンクされています。同じ NAS への接続には、接続ごとに個別の同期フォルダーが必要です。</translation>
    </message>
    <message>
        <source>Remove [ProductName] from this computer.</source>
        <extracomment>311 msi_maintenance_dlg_remove_text</extracomment>
        <translation>このコンピューターから [ProductName] を削除します。</translation>
    </message>
    <message>
        <source>Changes to files on a network drive cannot be detected immediately. Syncing may be delayed.</source>
        <extracomment>312 msg_network_drive_watch</extracomment>
        <translation>ネットワークドライブ上のファイルの変更は、すぐには検出できません。同期が遅れる場合があります。</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>313 manage_option_language</extracomment>
        <translation>言語</translation>
    </message>
    <message>
        <source>File added: </source>
        <extracomment>314 add</extracomment>
        <translation>ファイルの追加: </translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <extracomment>315 file_max_size_label</extracomment>
        <translation>最大ファイルサイズ:</translation>
    </message>
    <message>
        <source>No data </source>
        <extracomment>316 history_no_data</extracomment>
        <translation>データなし </translation>
    </message>
    <message>
        <source>Shared folder</source>
        <extracomment>317 manage_share_name</extracomment>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <extracomment>318 title_changefolder</extracomment>
        <translation>同期フォルダーの変更</translation>
    </message>
    <message>
        <source>Monday</source>
        <extracomment>319 monday</extracomment>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <extracomment>320 main_sync_task</extracomment>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>Encrypt the data transfer with SSL</source>
        <extracomment>321 manage_option_enable_ssl</extracomment>
        <translation>SSL でデータ転送を暗号化する</translation>
    </message>
    <message>
        <source>Unable to download &quot;%1&quot;.</source>
        <extracomment>322 msg_download_fail</extracomment>
        <translation>「%1」をダウンロードできません。</translation>
    </message>
    <message>
        <source>Auto Upgrade</source>
        <extracomment>323 title_upgrade</extracomment>
        <translation>自動アップグレード</translation>
    </message>
    <message>
        <source>Add a Sync Folder</source>
        <extracomment>324 wizard_new_sync_folder_title</extracomment>
        <translation>同期フォルダーの追加</translation>
    </message>
    <message>
        <source>January</source>
        <extracomment>325 month_jan</extracomment>
        <translation>1月</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <extracomment>326 err_inval</extracomment>
        <translation>無効な値が入力されました。入力内容を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Please wait while Larkmoor Drive connects to your NAS...</source>
        <extracomment>327 wizard_welcome_mask_desc</extracomment>
        <translation>Larkmoor Drive が NAS に接続しています。しばらくお待ちください...</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <extracomment>328 error_zero_version</extracomment>
        <translation>このファイルには以前のバージョンがありません。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Please choose a folder that you can write to.</source>
        <extracomment>329 msg_folder_readonly</extracomment>
        <translation>フォルダー「%1」は読み取り専用です。書き込み可能なフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated. You can let the Setup Wizard close them, or restart your computer later.</source>
        <extracomment>330 msi_filesinuse_dlg_text2</extracomment>
        <translation>次のアプリケーションが、更新の必要なファイルを使用しています。セットアップウィザードでこれらを閉じるか、後でコンピューターを再起動することができます。</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>331 language_default</extracomment>
        <translation>システムの既定</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the NAS.</source>
        <extracomment>332 err_share_not_mounted</extracomment>
        <translation>共有フォルダー「%1」が NAS にマウントされていません。</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <extracomment>333 msi_welcome_dlg_description</extracomment>
        <translation>このウィザードでは、お使いのコンピューターに [ProductName] をインストールします。続行するには「次へ」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Disconnected from the NAS. Trying to reconnect...</source>
        <extracomment>334 err_disconn</extracomment>
        <translation>NAS から切断されました。再接続を試みています...</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>335 management_proxy_apply_btn</extracomment>
        <translation>適用</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <extracomment>336 tray_setinfo</extracomment>
        <translation>接続設定</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <extracomment>337 history_last_week</extracomment>
        <translation>過去 7 日間</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <extracomment>339 context_menu_version_browse</extracomment>
        <translation>以前のバージョンを参照</translation>
    </message>
    <message>
        <source>Set Up Sync Folders</source>
        <extracomment>340 wizard_set_sync_folder</extracomment>
        <translation>同期フォルダーの設定</translation>
    </message>
    <message>
        <source>You do not have permission to create sharing links.</source>
        <extracomment>341 desc_cannot_share_link</extracomment>
        <translation>共有リンクを作成する権限がありません。</translation>
    </message>
    <message>
        <source>Learn More</source>
        <extracomment>342 more_tutorial</extracomment>
        <translation>詳細情報</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated. Please close them and click Retry to continue, or click Exit to end the installation.</source>
        <extracomment>343 msi_filesinuse_dlg_text</extracomment>
        <translation>次のアプリケーションが、更新の必要なファイルを使用しています。これらのアプリケーションを閉じてから、続行するには「再試行」を、インストールを中止するには「終了」をクリックしてください。</translation>
    </message>
    <message>
        <source>November</source>
        <extracomment>346 month_nov</extracomment>
        <translation>11月</translation>
    </message>
    <message>
        <source>Reading the connection mode...</source>
        <extracomment>347 conn_mode_reading</extracomment>
        <translation>接続モードを読み込んでいます...</translation>
    </message>
    <message>
        <source>Thursday</source>
        <extracomment>350 thursday</extracomment>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <extracomment>351 open_contain_folder</extracomment>
        <translation>ファイルのあるフォルダーを開く</translation>
    </message>
    <message>
        <source>Larkmoor Drive is running.</source>
        <extracomment>352 msg_running</extracomment>
        <translation>Larkmoor Drive は実行中です。</translation>
    </message>
    <message>
        <source>Stay in Control</source>
        <extracomment>353 tutorial_fourth_title</extracomment>
        <translation>思いのままにコントロール</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <extracomment>354 context_menu_filter_folder</extracomment>
        <translation>このフォルダーを同期しない</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <extracomment>355 sharing_apply_and_copy_button</extracomment>
        <translation>適用してリンクをコピー</translation>
    </message>
    <message>
        <source>August</source>
        <extracomment>357 month_aug</extracomment>
        <translation>8月</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <extracomment>358 msg_catchevent</extracomment>
        <translation>ファイルの変更を監視しています...</translation>
    </message>
    <message>
        <source>Merge</source>
        <extracomment>359 btn_merge</extracomment>
        <translation>統合</translation>
    </message>
    <message>
        <source>File type</source>
        <extracomment>360 history_file_type</extracomment>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Re&amp;try</source>
        <extracomment>361 msi_button_retry</extracomment>
        <translation>再試行(&amp;T)</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>362 title_ip</extracomment>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>A sync folder with this name already exists. Please choose another name.</source>
        <extracomment>363 wizard_share_name_duplicate_warning</extracomment>
        <translation>この名前の同期フォルダーはすでに存在します。別の名前を選択してください。</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>365 btn_back</extracomment>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>366 tray_management_page, 374 msg_summary, 482 network_management_page_btn</extracomment>
        <translation>設定</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already part of another sync folder.</source>
        <extracomment>367 err_share_folder_conflict</extracomment>
        <translation>フォルダー「%1」は、すでに別の同期フォルダーの一部になっています。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <extracomment>368 sunday</extracomment>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <extracomment>369 tuesday</extracomment>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>Put Your Files Here</source>
        <extracomment>370 tutorial_first_title</extracomment>
        <translation>ファイルはここに保存</translation>
    </message>
    <message>
        <source>Larkmoor Drive is initializing...</source>
        <extracomment>371 desc_lkmr_env_preparing</extracomment>
        <translation>Larkmoor Drive は初期化中です。</translation>
    </message>
    <message>
        <source>The connection is not secure because the SSL certificate of the NAS could not be verified.</source>
        <extracomment>372 status_desc_ssl_verify_fail</extracomment>
        <translation>NAS の SSL 証明書を検証できなかったため、接続は安全ではありません。</translation>
    </message>
    <message>
        <source>Your account has been disabled. Please contact the NAS administrator.</source>
        <extracomment>373 wizard_user_disable_sync_folder_warning</extracomment>
        <translation>お使いのアカウントは無効になっています。NAS の管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <extracomment>375 manage_share_loading</extracomment>
        <translation>共有フォルダーを読み込んでいます...</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <extracomment>376 manage_option_enable_desktop_notify</extracomment>
        <translation>デスクトップ通知を表示する</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>377 history_type</extracomment>
        <translation>種類</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud service. Syncing it twice may cause file conflicts.</source>
        <extracomment>378 conflict_dropbox</extracomment>
        <translation>このフォルダーは、すでに別のクラウドサービスで同期されています。二重に同期すると、ファイルの競合が発生する可能性があります。</translation>
    </message>
    <message>
        <source>Port</source>
        <extracomment>379 manage_proxy_server_port</extracomment>
        <translation>ポート</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>380 tray_about</extracomment>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Unable to sign in. Please check your username and password.</source>
        <extracomment>381 err_auth</extracomment>
        <translation>サインインできません。ユーザー名とパスワードを確認してください。</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>382 history_to</extracomment>
        <translation>終了日</translation>
    </message>
    <message>
        <source>Choose a Sync Mode</source>
        <extracomment>383 selective_sync_mode_title</extracomment>
        <translation>同期モードの選択</translation>
    </message>
    <message>
        <source>Custom validity period</source>
        <extracomment>384 sharing_customize_duration</extracomment>
        <translation>有効期間を指定</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <extracomment>385 msg_download_downloading</extracomment>
        <translation>「%1」をダウンロードしています...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <extracomment>386 status_desc_syncing</extracomment>
        <translation>同期中: %1</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>387 today</extracomment>
        <translation>今日</translation>
    </message>
    <message>
        <source>See the Status at a Glance</source>
        <extracomment>388 tutorial_second_title</extracomment>
        <translation>状態がひと目でわかる</translation>
    </message>
    <message>
        <source>Proxy</source>
        <extracomment>389 manage_proxy_tab_name</extracomment>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>390 manage_option_title</extracomment>
        <translation>オプション</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved, renamed or deleted.</source>
        <extracomment>391 err_local_sync_folder_miss</extracomment>
        <translation>ローカルの同期フォルダー「%1」が見つかりません。移動、名前の変更、または削除された可能性があります。</translation>
    </message>
    <message>
        <source>Unable to remove the sync folder &quot;%1&quot;.</source>
        <extracomment>392 err_shareitem_delete</extracomment>
        <translation>同期フォルダー「%1」を削除できません。</translation>
    </message>
    <message>
        <source>Initializing</source>
        <extracomment>393 label_preparing</extracomment>
        <translation>初期化中</translation>
    </message>
    <message>
        <source>Link a New NAS</source>
        <extracomment>394 link_new_nas</extracomment>
        <translation>新しい NAS をリンク</translation>
    </message>
    <message>
        <source>{\\DlgFont8}I do not accept the terms of the License Agreement</source>
        <extracomment>395 msi_eula_dlg_reject</extracomment>
        <translation>{\\DlgFont8}使用許諾契約書の条項に同意しません</translation>
    </message>
    <message>
        <source>Your IP address has been blocked by the NAS. Please contact the NAS administrator.</source>
        <extracomment>396 err_ip_not_allowed</extracomment>
        <translation>お使いの IP アドレスは NAS によってブロックされています。NAS の管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Last page</source>
        <extracomment>397 last_page</extracomment>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>398 col_file_status, 498 manage_share_status</extracomment>
        <translation>状態</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected.</source>
        <extracomment>399 msi_maintenance_dlg_change_text_disabled</extracomment>
        <translation>[ProductName] には、選択できる機能がありません。</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <extracomment>400 msi_button_yes</extracomment>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>Standby</source>
        <extracomment>401 title_standby</extracomment>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>402 btn_done</extracomment>
        <translation>完了</translation>
    </message>
    <message>
        <source>Create a Larkmoor Drive folder</source>
        <extracomment>403 wizard_create_larkmoor_folder</extracomment>
        <translation>Larkmoor Drive フォルダーを作成</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is now available. Click here to sync it.</source>
        <extracomment>404 notify_new_share</extracomment>
        <translation>共有フォルダー「%1」が利用可能になりました。同期するには、ここをクリックしてください。</translation>
    </message>
    <message>
        <source>Click the tray icon to pause syncing, view the sync history or change your settings.</source>
        <extracomment>405 tutorial_fourth_desc</extracomment>
        <translation>トレイアイコンをクリックすると、同期の一時停止、同期履歴の表示、設定の変更ができます。</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <extracomment>406 msg_connectsucc</extracomment>
        <translation>正常に接続しました。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <extracomment>407 msi_filesinuse_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]使用中のファイル</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <extracomment>408 desc_cannot_list_version</extracomment>
        <translation>このファイルのバージョンを一覧表示できません。</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <extracomment>410 tray_data_checking</extracomment>
        <translation>データを確認しています...</translation>
    </message>
    <message>
        <source>A green check mark means that a file has been synced.</source>
        <extracomment>411 tutorial_second_desc_2</extracomment>
        <translation>緑色のチェックマークは、ファイルが同期済みであることを示します。</translation>
    </message>
    <message>
        <source>Sync has stopped</source>
        <extracomment>412 notify_abnormal_short</extracomment>
        <translation>同期が停止しました</translation>
    </message>
    <message>
        <source>Status information</source>
        <extracomment>413 title_status_info</extracomment>
        <translation>状態情報</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Please free up some space or contact the NAS administrator.</source>
        <extracomment>414 wizard_diskfull_sync_folder_warning, 426 status_desc_diskfull</extracomment>
        <translation>NAS の空き容量が不足しています。空き容量を増やすか、NAS の管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <extracomment>416 msi_button_back</extracomment>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>Up to date</source>
        <extracomment>417 status_desc_uptodate, 457 tray_uptodate</extracomment>
        <translation>最新の状態です</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <extracomment>418 msg_finish</extracomment>
        <translation>セットアップ完了</translation>
    </message>
    <message>
        <source>Larkmoor Drive keeps the files on this computer in sync with your NAS. Please enter your connection information to get started.</source>
        <extracomment>419 wizard_welcome_desc</extracomment>
        <translation>Larkmoor Drive は、このコンピューターのファイルを NAS と常に同期します。まず、接続情報を入力してください。</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <extracomment>420 msi_maintenance_dlg_repair_tooltip</extracomment>
        <translation>インストールされたプログラムを修復します</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <extracomment>421 msi_filesinuse_dlg_description</extracomment>
        <translation>更新の必要なファイルの一部が現在使用されています。</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <extracomment>422 wizard_client_upgrade, 428 tray_upgrade</extracomment>
        <translation>アップグレード</translation>
    </message>
    <message>
        <source>Repair missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <extracomment>423 msi_maintenance_dlg_repair_text</extracomment>
        <translation>[ProductName] の不足または破損しているファイル、ショートカット、レジストリエントリを修復します。</translation>
    </message>
    <message>
        <source>Show status icons on files and folders that are not synced</source>
        <extracomment>424 manage_option_show_filtered_icons</extracomment>
        <translation>同期されないファイルとフォルダーに状態アイコンを表示する</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <extracomment>429 msg_unlinking</extracomment>
        <translation>リンクを解除しています...</translation>
    </message>
    <message>
        <source>Choose what you want to do with the installation.</source>
        <extracomment>430 msi_maintenance_dlg_description</extracomment>
        <translation>インストールされたプログラムに対して実行する操作を選択してください。</translation>
    </message>
    <message>
        <source>December</source>
        <extracomment>431 month_dec</extracomment>
        <translation>12月</translation>
    </message>
    <message>
        <source>This Bridgeway ID does not exist. Please check the ID and try again.</source>
        <extracomment>432 err_autoconn_invalidid</extracomment>
        <translation>この Bridgeway ID は存在しません。ID を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match your permissions. Please change it in the settings.</source>
        <extracomment>433 sync_direction_mismatch</extracomment>
        <translation>このフォルダーの同期方向が、お使いのアカウントの権限と一致していません。設定で変更してください。</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <extracomment>434 main_settings</extracomment>
        <translation>全体設定</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <extracomment>435 tray_updatedfile</extracomment>
        <translation>最近更新されたファイル</translation>
    </message>
    <message>
        <source>The NAS has been replaced.</source>
        <extracomment>436 tray_hb_change</extracomment>
        <translation>NAS が交換されました。</translation>
    </message>
    <message>
        <source>Add a sync folder on another NAS</source>
        <extracomment>437 wizard_sync_folder_new_nas</extracomment>
        <translation>別の NAS に同期フォルダーを追加</translation>
    </message>
    <message>
        <source>Larkmoor Drive</source>
        <extracomment>438 app_name</extracomment>
        <translation>Larkmoor Drive</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <extracomment>439 err_init_failed</extracomment>
        <translation>初期化に失敗しました。</translation>
    </message>
    <message>
        <source>The volume on the NAS is not mounted. Please contact the NAS administrator.</source>
        <extracomment>440 err_remote_not_mounted</extracomment>
        <translation>NAS のボリュームがマウントされていません。NAS の管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <extracomment>442 err_proxy_ipport_empty</extracomment>
        <translation>プロキシサーバーのアドレスとポートを入力してください。</translation>
    </message>
    <message>
        <source>September</source>
        <extracomment>443 month_sep</extracomment>
        <translation>9月</translation>
    </message>
    <message>
        <source>No options available</source>
        <extracomment>444 context_menu_no_option_available</extracomment>
        <translation>利用できるオプションがありません</translation>
    </message>
    <message>
        <source>Almost Done!</source>
        <extracomment>446 wizard_set_sync_folder_title</extracomment>
        <translation>もうすぐ完了です!</translation>
    </message>
    <message>
        <source>Copy to %1</source>
        <extracomment>447 context_menu_sendto_prefix</extracomment>
        <translation>%1 にコピー</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <extracomment>448 hb_overview</extracomment>
        <translation>NAS の概要</translation>
    </message>
    <message>
        <source>No NAS yet? Visit our website to learn more.</source>
        <extracomment>450 wizard_welcome_footer_info</extracomment>
        <translation>NAS をまだお持ちでない場合は、当社の Web サイトで詳細をご覧ください。</translation>
    </message>
    <message>
        <source>July</source>
        <extracomment>451 month_jul</extracomment>
        <translation>7月</translation>
    </message>
    <message>
        <source>Unable to create the folder &quot;%1&quot; on this computer.</source>
        <extracomment>452 wizard_create_local_folder_failed</extracomment>
        <translation>このコンピューターにフォルダー「%1」を作成できません。</translation>
    </message>
    <message>
        <source>Service disabled</source>
        <extracomment>453 err_orlaqdisable_short</extracomment>
        <translation>サービスが無効です</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <extracomment>454 advanced_settings</extracomment>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <extracomment>455 msi_button_install</extracomment>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>File edited:</source>
        <extracomment>458 edit</extracomment>
        <translation>ファイルの編集:</translation>
    </message>
    <message>
        <source>Start Larkmoor Drive when you sign in to your computer</source>
        <extracomment>459 manage_option_enable_startup</extracomment>
        <translation>コンピューターへのサインイン時に Larkmoor Drive を起動する</translation>
    </message>
    <message>
        <source>Local network</source>
        <extracomment>460 conn_mode_lan</extracomment>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>Share with Others</source>
        <extracomment>462 tutorial_third_title</extracomment>
        <translation>他のユーザーと共有</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <extracomment>463 msi_maintenance_dlg_remove_label</extracomment>
        <translation>アンインストール</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setting Up [ProductName]</source>
        <extracomment>465 msi_progress_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont][ProductName] のセットアップ</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account information.</source>
        <extracomment>466 wizard_connection_setting_desc</extracomment>
        <translation>NAS のアドレスとアカウント情報を入力してください。</translation>
    </message>
    <message>
        <source>{\DlgFont8}I accept the terms of the License Agreement</source>
        <extracomment>467 msi_eula_dlg_accept</extracomment>
        <translation>{\DlgFont8}使用許諾契約書の条項に同意します</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <extracomment>468 err_share_nonexist_short</extracomment>
        <translation>共有フォルダーが見つかりません</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>469 history_yesterday</extracomment>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Sharing links cannot be used because Bridgeway is not enabled on the NAS. Please contact the NAS administrator.</source>
        <extracomment>470 err_bridgeway_file_sharing</extracomment>
        <translation>NAS で Bridgeway が有効になっていないため、共有リンクを使用できません。NAS の管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Syncing it may cause data conflicts.</source>
        <extracomment>471 wizard_conflict_backup_warning</extracomment>
        <translation>このフォルダーはバックアップタスクで使用されています。同期すると、データの競合が発生する可能性があります。</translation>
    </message>
    <message>
        <source>Change</source>
        <extracomment>472 msi_maintenance_dlg_change_label</extracomment>
        <translation>変更</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <extracomment>473 wizard_setup_quick_mode_title</extracomment>
        <translation>クイックセットアップ</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <extracomment>474 prev_x_pages</extracomment>
        <translation>前の %1 ページ</translation>
    </message>
    <message>
        <source>%1 cannot be synced because it is in use, or acccess is denied.</source>
        <extracomment>475 label_locked_file</extracomment>
        <translation>使用中であるかアクセスが拒否されたため、%1 を同期できません。</translation>
    </message>
    <message>
        <source>Sync your files across all your computers</source>
        <extracomment>476 msg_sub_slogan</extracomment>
        <translation>すべてのコンピューター間でファイルを同期</translation>
    </message>
    <message>
        <source>If a file has been changed both on this computer and on the NAS:</source>
        <extracomment>477 conflict_policy_desc</extracomment>
        <translation>このコンピューターと NAS の両方でファイルが変更された場合:</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <extracomment>478 msg_upgrading</extracomment>
        <translation>アップグレードしています...</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <extracomment>479 status_desc_abnormal_short</extracomment>
        <translation>問題があります</translation>
    </message>
    <message>
        <source>Date range</source>
        <extracomment>480 history_date_range</extracomment>
        <translation>期間</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>481 history_delete</extracomment>
        <translation>削除</translation>
    </message>
    <message>
        <source>Mount points are not supported</source>
        <extracomment>483 err_share_mountpt_short</extracomment>
        <translation>マウントポイントはサポートされていません</translation>
    </message>
    <message>
        <source>Copyright (c) %1 Larkmoor. All rights reserved.</source>
        <extracomment>484 msg_about</extracomment>
        <translation>Copyright (c) %1 Larkmoor. All rights reserved.</translation>
    </message>
    <message>
        <source>NAS</source>
        <extracomment>485 title_chart_tray</extracomment>
        <translation>NAS</translation>
    </message>
    <message>
        <source>Open file</source>
        <extracomment>486 open_file</extracomment>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Always keep the version on the NAS</source>
        <extracomment>487 conflict_policy_overwrite_client</extracomment>
        <translation>常に NAS 上のバージョンを残す</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <extracomment>489 title_icon_double_clicked</extracomment>
        <translation>トレイアイコンをダブルクリックしたとき</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>490 btn_next</extracomment>
        <translation>次へ</translation>
    </message>
    <message>
        <source>The sync database is damaged. Please restart or reinstall Larkmoor Drive.</source>
        <extracomment>491 err_database</extracomment>
        <translation>同期データベースが破損しています。Larkmoor Drive を再起動または再インストールしてください。</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <extracomment>493 history_last_month</extracomment>
        <translation>過去 30 日間</translation>
    </message>
    <message>
        <source>Your quota on the NAS is not large enough to upload &quot;%1&quot;.</source>
        <extracomment>494 msg_quotafull</extracomment>
        <translation>NAS のクォータが不足しているため、「%1」をアップロードできません。</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <extracomment>495 time_minute_ago</extracomment>
        <translation>%1 分前</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <extracomment>497 msg_progress</extracomment>
        <translation>ステップ %1/%2</translation>
    </message>
    <message>
        <source>The shared folder does not exist or has been removed. Please choose another one.</source>
        <extracomment>499 wizard_share_nonexist_sync_folder_warning</extracomment>
        <translation>この共有フォルダーは存在しないか、削除されています。別の共有フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>This folder contains, or lies inside, another sync folder. Please choose another one.</source>
        <extracomment>500 wizard_conflict_sync_folder_warning</extracomment>
        <translation>このフォルダーは、別の同期フォルダーを含んでいるか、別の同期フォルダーの中にあります。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>No Thanks</source>
        <extracomment>501 no_need</extracomment>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Choose a Sync Direction</source>
        <extracomment>502 selective_sync_direction_title</extracomment>
        <translation>同期方向の選択</translation>
    </message>
    <message>
        <source>Internet</source>
        <extracomment>503 conn_mode_wan</extracomment>
        <translation>インターネット</translation>
    </message>
    <message>
        <source>You have reached the maximum number of sync folders.</source>
        <extracomment>504 err_share_limit</extracomment>
        <translation>同期フォルダーの数が上限に達しました。</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>506 history_reset</extracomment>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <extracomment>507 err_max_tries</extracomment>
        <translation>失敗した回数が多すぎます。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from %1?</source>
        <extracomment>508 msg_confirm_unlink</extracomment>
        <translation>このコンピューターと %1 のリンクを解除しますか?</translation>
    </message>
    <message>
        <source>Domain name, IP address or Bridgeway ID</source>
        <extracomment>509 title_ip_detail</extracomment>
        <translation>ドメイン名、IP アドレス、または Bridgeway ID</translation>
    </message>
    <message>
        <source>Sync extended attributes and permissions</source>
        <extracomment>511 selective_enable_entire_attribute_check</extracomment>
        <translation>拡張属性とアクセス権を同期する</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <extracomment>512 err_user_name_empty</extracomment>
        <translation>ユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>513 manage_share_tab_name</extracomment>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>This computer</source>
        <extracomment>514 title_chart_local</extracomment>
        <translation>このコンピューター</translation>
    </message>
    <message>
        <source>Sharing</source>
        <extracomment>515 title_bubble_sharing</extracomment>
        <translation>共有</translation>
    </message>
    <message>
        <source>Connect through Bridgeway</source>
        <extracomment>517 use_bridgeway</extracomment>
        <translation>Bridgeway 経由で接続する</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications (you will need to restart your computer)</source>
        <extracomment>518 msi_filesinuse_dlg_closenone</extracomment>
        <translation>アプリケーションを閉じない (コンピューターの再起動が必要になります)(&amp;D)</translation>
    </message>
    <message>
        <source>Larkmoor Drive is ready.</source>
        <extracomment>519 desc_lkmr_env_preparation_done</extracomment>
        <translation>Larkmoor Drive は準備完了です。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <extracomment>520 msi_button_no</extracomment>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <extracomment>522 block_file_table_title</extracomment>
        <translation>除外ファイル</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>523 history_file</extracomment>
        <translation>ファイル</translation>
    </message>
</context>
</TS>
