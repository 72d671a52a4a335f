<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Searching for NAS devices on your local network...</source>
        <extracomment>0 local_hb_search</extracomment>
        <translation>正在本地网络中搜索 NAS 设备...</translation>
    </message>
    <message>
        <source>April</source>
        <extracomment>1 month_apr</extracomment>
        <translation>四月</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be uploaded to the NAS.</source>
        <extracomment>2 read_only_tooltip</extracomment>
        <translation>您对此文件夹只有只读权限。在此电脑上所做的更改不会上传到 NAS。</translation>
    </message>
    <message>
        <source>Choose the folders, sync direction and file filters yourself (recommended for experienced users)&#x200b;.</source>
        <extracomment>3 wizard_setup_advan_mode_desc</extracomment>
        <translation>自行选择文件夹、同步方向和文件筛选条件（建议有经验的用户使用）。</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>4 history_from</extracomment>
        <translation>开始日期</translation>
    </message>
    <message>
        <source>Do you want to stop the installation of [ProductName]?</source>
        <extracomment>5 msi_cancel_dlg_text</extracomment>
        <translation>是否要停止安装 [ProductName]？</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <extracomment>6 msi_welcome_dlg_title, 80 msi_readyremove_dlg_title, 99 msi_maintenance_welcome_dlg_title, 242 msi_error_dlg_title, 256 msi_userexit_dlg_title, 276 msi_fatalerror_dlg_title, 277 msi_eula_dlg_title, 345 msi_filesinuse_dlg_title, 356 msi_maintenance_dlg_title, 425 msi_exit_dlg_title, 441 msi_progress_dlg_title, 456 msi_readyrepair_dlg_title, 488 msi_ready_dlg_title, 492 msi_cancel_dlg_title</extracomment>
        <translation>[ProductName] 安装程序</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>7 col_file_action, 505 history_action</extracomment>
        <translation>操作</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <extracomment>8 msi_welcome_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}欢迎使用 [ProductName] 安装向导</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <extracomment>9 msi_exit_dlg_description, 297 msi_userexit_dlg_description2, 445 msi_exit_dlg_text, 461 msi_fatalerror_dlg_description2</extracomment>
        <translation>请单击“完成”按钮退出安装向导。</translation>
    </message>
    <message>
        <source>Unable to reach the network. Please check your network connection and try again.</source>
        <extracomment>10 err_network</extracomment>
        <translation>无法访问网络。请检查您的网络连接，然后重试。</translation>
    </message>
    <message>
        <source>One-way download</source>
        <extracomment>11 one_way_sync_download, 349 one_way_download</extracomment>
        <translation>单向下载</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>12 btn_help</extracomment>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Sync is enabled for this folder.</source>
        <extracomment>13 share_enabled</extracomment>
        <translation>此文件夹已启用同步。</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <extracomment>14 common_forminvalid</extracomment>
        <translation>某些字段包含无效的值。请先更正，然后再继续。</translation>
    </message>
    <message>
        <source>Currently syncing</source>
        <extracomment>15 tray_current_syncing</extracomment>
        <translation>正在同步</translation>
    </message>
    <message>
        <source>The Bridgeway service is temporarily unavailable. Please try again later.</source>
        <extracomment>16 err_autoconn_sys</extracomment>
        <translation>Bridgeway 服务暂时不可用。请稍后重试。</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <extracomment>17 conn_mode_direct</extracomment>
        <translation>直接连接</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. Please check the certificate or contact the NAS administrator.</source>
        <extracomment>18 wizard_ssl_verify_fail_sync_folder_warning, 521 err_ssl_verify_fail</extracomment>
        <translation>无法验证 NAS 的 SSL 证书。请检查证书或联系 NAS 管理员。</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <extracomment>19 msi_button_exit</extracomment>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>Syncing of &quot;%1&quot; has stopped because of an error. Click here for details.</source>
        <extracomment>20 notify_abnormal</extracomment>
        <translation>“%1”因出错而停止同步。单击此处查看详细信息。</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please try again.</source>
        <extracomment>21 msg_test_username_fail</extracomment>
        <translation>用户名或密码不正确。请重试。</translation>
    </message>
    <message>
        <source>This folder cannot be used as a sync folder. Please choose another one.</source>
        <extracomment>22 wizard_invalid_sync_folder_warning</extracomment>
        <translation>此文件夹不能用作同步文件夹。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Larkmoor Drive will keep the following folder in sync with your NAS:</source>
        <extracomment>23 quick_mode_finish_page_desc</extracomment>
        <translation>Larkmoor Drive 会将以下文件夹与您的 NAS 保持同步：</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <extracomment>24 manage_proxy_chk_manual</extracomment>
        <translation>手动设置代理</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <extracomment>25 err_auth_short, 238 status_desc_auth_short</extracomment>
        <translation>身份验证失败</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <extracomment>26 status_desc_version_short</extracomment>
        <translation>不支持的版本</translation>
    </message>
    <message>
        <source>October</source>
        <extracomment>27 month_oct</extracomment>
        <translation>十月</translation>
    </message>
    <message>
        <source>Computer name</source>
        <extracomment>28 col_computer_name</extracomment>
        <translation>电脑名称</translation>
    </message>
    <message>
        <source>Saturday</source>
        <extracomment>29 saturday</extracomment>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <extracomment>30 unlink_connection</extracomment>
        <translation>取消此连接的关联</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <extracomment>31 manage_proxy_server_ip</extracomment>
        <translation>代理服务器地址</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Remove [ProductName]</source>
        <extracomment>32 msi_readyremove_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]已准备好删除 [ProductName]</translation>
    </message>
    <message>
        <source>This wizard lets you change, repair or remove [ProductName]. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <extracomment>33 msi_maintenance_welcome_dlg_description</extracomment>
        <translation>此向导可用于更改、修复或删除 [ProductName]。单击“下一步”继续，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>34 history_upload</extracomment>
        <translation>上传</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <extracomment>35 manage_proxy_chk_account</extracomment>
        <translation>代理服务器需要身份验证</translation>
    </message>
    <message>
        <source>Choose a Setup Mode</source>
        <extracomment>36 wizard_setup_mode_page_title</extracomment>
        <translation>选择设置模式</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>37 desc_inactive, 292 title_inactive</extracomment>
        <translation>非活动</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Files will be downloaded to this computer, but local changes will not be uploaded.</source>
        <extracomment>38 wizard_readonly_sync_folder_warning</extracomment>
        <translation>您对此文件夹只有只读权限。文件会下载到此电脑，但本地更改不会上传。</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <extracomment>39 manage_setting_applying</extracomment>
        <translation>正在应用设置...</translation>
    </message>
    <message>
        <source>Loading...</source>
        <extracomment>40 loading</extracomment>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>Pause Connection</source>
        <extracomment>41 pause_connection</extracomment>
        <translation>暂停连接</translation>
    </message>
    <message>
        <source>The text cannot be longer than %1 characters.</source>
        <extracomment>42 common_maxlengthtext</extracomment>
        <translation>文本长度不能超过 %1 个字符。</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>43 err_short, 77 title_folder_readonly, 449 err_common</extracomment>
        <translation>错误</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <extracomment>44 time_hour_ago</extracomment>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <extracomment>45 common_fieldblank</extracomment>
        <translation>此字段不能为空。</translation>
    </message>
    <message>
        <source>A system error occurred while accessing this folder. Please try again later.</source>
        <extracomment>46 wizard_system_err_sync_folder_warning</extracomment>
        <translation>访问此文件夹时发生系统错误。请稍后重试。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Is Complete</source>
        <extracomment>47 msi_exit_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] 安装完成</translation>
    </message>
    <message>
        <source>June</source>
        <extracomment>48 month_jun</extracomment>
        <translation>六月</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>49 tray_resume, 262 session_resume_btn</extracomment>
        <translation>继续</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>50 msg_disabled</extracomment>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to [ProductName] Maintenance</source>
        <extracomment>51 msi_maintenance_welcome_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}欢迎使用 [ProductName] 维护向导</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>52 history_customize</extracomment>
        <translation>自定义</translation>
    </message>
    <message>
        <source>This computer is already linked to %1. Linking it to the same NAS again may cause file conflicts. Do you want to continue?</source>
        <extracomment>53 wizard_setup_repeat_warning2</extracomment>
        <translation>此电脑已与 %1 关联。再次关联到同一台 NAS 可能会导致文件冲突。是否继续？</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>54 btn_shareitem_delete</extracomment>
        <translation>移除</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>55 version</extracomment>
        <translation>版本</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <extracomment>56 btn_choseother</extracomment>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>Please review the settings below, and then click Finish to start syncing.</source>
        <extracomment>57 msg_info_description</extracomment>
        <translation>请检查以下设置，然后单击“完成”开始同步。</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <extracomment>58 conflict_policy_compare_mtime</extracomment>
        <translation>保留最近修改的版本</translation>
    </message>
    <message>
        <source>Date created</source>
        <extracomment>59 col_create_time</extracomment>
        <translation>创建日期</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <extracomment>60 time_day_ago</extracomment>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <extracomment>61 err_invalid_port_number</extracomment>
        <translation>端口号必须介于 1 和 65535 之间。</translation>
    </message>
    <message>
        <source>Sync History</source>
        <extracomment>62 history_page_title</extracomment>
        <translation>同步历史记录</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <extracomment>63 btn_edit_connection</extracomment>
        <translation>编辑连接</translation>
    </message>
    <message>
        <source>Friday</source>
        <extracomment>64 friday</extracomment>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Destination</source>
        <extracomment>65 col_file_destination</extracomment>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Please confirm the new certificate to resume syncing.</source>
        <extracomment>66 err_ssl_change, 348 wizard_ssl_change_sync_folder_warning</extracomment>
        <translation>NAS 的 SSL 证书已更改。请确认新证书以恢复同步。</translation>
    </message>
    <message>
        <source>The folders that you have deselected will be permantely removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <extracomment>67 selective_sync_remove_msg</extracomment>
        <translation>您取消选择的文件夹将从此电脑中永久删除。NAS 上的副本将会保留。是否继续？</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <extracomment>68 selective_sync, 71 session_selective_sync_btn</extracomment>
        <translation>选择性同步</translation>
    </message>
    <message>
        <source>Open Larkmoor Drive</source>
        <extracomment>69 open_main_app, 145 title_open_larkmoor</extracomment>
        <translation>打开 Larkmoor Drive</translation>
    </message>
    <message>
        <source>File filters</source>
        <extracomment>70 file_selective_sync</extracomment>
        <translation>文件筛选</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <extracomment>72 msi_button_finish</extracomment>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>File name</source>
        <extracomment>73 history_file_name, 285 col_file_name</extracomment>
        <translation>文件名</translation>
    </message>
    <message>
        <source>File names that begin with a period (.)</source>
        <extracomment>74 block_point_prefix</extracomment>
        <translation>以句点（.）开头的文件名</translation>
    </message>
    <message>
        <source>Files with these names will not be synced. Separate the names with semicolons.</source>
        <extracomment>75 block_file_name_tool_tip</extracomment>
        <translation>具有这些名称的文件不会同步。请用分号分隔各个名称。</translation>
    </message>
    <message>
        <source>Uploading</source>
        <extracomment>76 label_uploading</extracomment>
        <translation>正在上传</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer. Larkmoor Drive will keep them in sync.</source>
        <extracomment>78 wizard_new_sync_folder_desc</extracomment>
        <translation>请选择 NAS 上的文件夹和此电脑上的文件夹。Larkmoor Drive 会让两者保持同步。</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Larkmoor Drive will be installed for your user account only. Do you want to continue?</source>
        <extracomment>79 NSIS_NOT_ADMIN_CONFIRM</extracomment>
        <translation>您未以管理员身份登录。Larkmoor Drive 将仅为您的用户账户安装。是否继续？</translation>
    </message>
    <message>
        <source>The sync service is disabled for your account. Please contact the NAS administrator.</source>
        <extracomment>81 err_orlaqdisable</extracomment>
        <translation>您账户的同步服务已被禁用。请联系 NAS 管理员。</translation>
    </message>
    <message>
        <source>This is not the NAS that was originally linked. Please check the address or set up a new connection.</source>
        <extracomment>82 err_hb_not_match</extracomment>
        <translation>这不是最初关联的 NAS。请检查地址或设置新的连接。</translation>
    </message>
    <message>
        <source>You do not have permission to share this file. Please contact the NAS administrator.</source>
        <extracomment>83 sharing_restrict</extracomment>
        <translation>您没有共享此文件的权限。请联系 NAS 管理员。</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>84 manage_option_tab_name</extracomment>
        <translation>常规</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <extracomment>85 manage_setting_not_save</extracomment>
        <translation>您的更改尚未保存。是否放弃更改？</translation>
    </message>
    <message>
        <source>Username</source>
        <extracomment>86 title_usr, 92 manage_proxy_label_username</extracomment>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Manage</source>
        <extracomment>87 btn_manage</extracomment>
        <translation>管理</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove [ProductName] from this computer.</source>
        <extracomment>88 msi_readyremove_dlg_description</extracomment>
        <translation>安装向导已准备好从此电脑中删除 [ProductName]。</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>89 history_folder</extracomment>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>There are no folders available to sync.</source>
        <extracomment>90 no_valid_folder</extracomment>
        <translation>没有可同步的文件夹。</translation>
    </message>
    <message>
        <source>Local folder</source>
        <extracomment>91 manage_share_local_syncfolder</extracomment>
        <translation>本地文件夹</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <extracomment>93 wizard_setup_advan_mode_title</extracomment>
        <translation>高级设置模式</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>94 status_desc_pause, 269 tray_status_paused</extracomment>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Welcome to Larkmoor Drive</source>
        <extracomment>95 title_welcome</extracomment>
        <translation>欢迎使用 Larkmoor Drive</translation>
    </message>
    <message>
        <source>Folder selection</source>
        <extracomment>96 folder_selective_sync</extracomment>
        <translation>文件夹选择</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in a few clicks. All your files will be synced to a single folder with the recommended settings.</source>
        <extracomment>97 wizard_setup_quick_mode_desc</extracomment>
        <translation>只需单击几下，即可将此电脑与您的 NAS 关联。您的所有文件将按推荐设置同步到一个文件夹中。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <extracomment>98 tray_opendir, 415 open_folder</extracomment>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <extracomment>100 manage_option_synchronization_mode</extracomment>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Add a sync folder to an existing connection</source>
        <extracomment>101 wizard_sync_folder_new_session</extracomment>
        <translation>为现有连接添加同步文件夹</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <extracomment>102 advan_setup_wizard</extracomment>
        <translation>高级设置向导</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <extracomment>103 context_menu_filter_folders</extracomment>
        <translation>不同步这些文件夹</translation>
    </message>
    <message>
        <source>A new version of Larkmoor Drive is available. Click here to update.</source>
        <extracomment>104 tray_click_to_update</extracomment>
        <translation>Larkmoor Drive 有新版本可用。单击此处进行更新。</translation>
    </message>
    <message>
        <source>A newer version of Larkmoor Drive is already installed. To install this version, please uninstall the current version first.</source>
        <extracomment>105 NSIS_LARKMOOR_INSTALLED_NEWER</extracomment>
        <translation>已安装较新版本的 Larkmoor Drive。若要安装此版本，请先卸载当前版本。</translation>
    </message>
    <message>
        <source>A different NAS has been found at this address. Please link this computer again.</source>
        <extracomment>106 status_desc_hb_changed</extracomment>
        <translation>在此地址发现了另一台 NAS。请重新关联此电脑。</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <extracomment>107 manage_option_merge_mode</extracomment>
        <translation>合并模式</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>108 btn_cancel, 241 management_proxy_cancel_btn, 496 msi_button_cancel</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>To use selective sync, please update Larkmoor Server on your NAS.</source>
        <extracomment>109 update_pkg_for_selective_sync</extracomment>
        <translation>若要使用选择性同步，请更新 NAS 上的 Larkmoor Server。</translation>
    </message>
    <message>
        <source>Files that match the following names or extensions will not be synced.</source>
        <extracomment>110 black_list_desc</extracomment>
        <translation>与以下名称或扩展名匹配的文件不会同步。</translation>
    </message>
    <message>
        <source>Choose the folders on the NAS that you want to sync to this computer.</source>
        <extracomment>111 advan_mode_set_share_folder_info</extracomment>
        <translation>请选择要将 NAS 上的哪些文件夹同步到此电脑。</translation>
    </message>
    <message>
        <source>Everything you put into this folder is synced to your NAS and to all your linked computers.</source>
        <extracomment>112 tutorial_first_desc</extracomment>
        <translation>您放入此文件夹的所有内容都会同步到您的 NAS 以及所有已关联的电脑。</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <extracomment>113 title_conn_mode</extracomment>
        <translation>连接模式</translation>
    </message>
    <message>
        <source>ID</source>
        <extracomment>114 title_id, 464 col_id</extracomment>
        <translation>ID</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been reached. Please free up some space or contact the NAS administrator.</source>
        <extracomment>115 msg_share_quotafull</extracomment>
        <translation>共享文件夹“%1”已达到配额上限。请释放一些空间或联系 NAS 管理员。</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <extracomment>116 manage_proxy_title</extracomment>
        <translation>代理设置</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <extracomment>117 manage_option_sync_mode</extracomment>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Summary</source>
        <extracomment>118 msg_info</extracomment>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Connection Already Exists</source>
        <extracomment>119 wizard_setup_repeat_warning_title</extracomment>
        <translation>连接已存在</translation>
    </message>
    <message>
        <source>Folder name</source>
        <extracomment>120 folder_name</extracomment>
        <translation>文件夹名称</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <extracomment>121 two_way_sync</extracomment>
        <translation>双向同步</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <extracomment>122 msi_maintenance_dlg_change_tooltip</extracomment>
        <translation>更改安装内容</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS. Please contact the NAS administrator.</source>
        <extracomment>123 err_user_home_disabled</extracomment>
        <translation>NAS 上的个人文件夹服务已被禁用。请联系 NAS 管理员。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Install [ProductName]</source>
        <extracomment>124 msi_ready_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]已准备好安装 [ProductName]</translation>
    </message>
    <message>
        <source>March</source>
        <extracomment>125 month_mar</extracomment>
        <translation>三月</translation>
    </message>
    <message>
        <source>Your files, wherever you are</source>
        <extracomment>126 msg_slogan</extracomment>
        <translation>无论身在何处，文件触手可及</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License Agreement</source>
        <extracomment>127 msi_eula_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]许可协议</translation>
    </message>
    <message>
        <source>Get link</source>
        <extracomment>128 context_menu_share_link</extracomment>
        <translation>获取链接</translation>
    </message>
    <message>
        <source>Valid from</source>
        <extracomment>129 sharing_enable_start_at</extracomment>
        <translation>生效日期</translation>
    </message>
    <message>
        <source>February</source>
        <extracomment>130 month_feb</extracomment>
        <translation>二月</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <extracomment>131 err_version_short</extracomment>
        <translation>版本不兼容</translation>
    </message>
    <message>
        <source>The network connection is unstable.</source>
        <extracomment>132 tray_unstable</extracomment>
        <translation>网络连接不稳定。</translation>
    </message>
    <message>
        <source>Do not sync the following files:</source>
        <extracomment>133 file_black_list_label</extracomment>
        <translation>不同步以下文件：</translation>
    </message>
    <message>
        <source>Linking...</source>
        <extracomment>134 msg_linking, 308 status_desc_linking</extracomment>
        <translation>正在关联...</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed because an error occurred. No changes have been made to your computer. To try again later, please run the installer again.</source>
        <extracomment>135 msi_fatalerror_dlg_description1</extracomment>
        <translation>由于发生错误，无法安装 [ProductName]。您的电脑未做任何更改。若要以后再试，请重新运行安装程序。</translation>
    </message>
    <message>
        <source>Download only</source>
        <extracomment>136 download_only</extracomment>
        <translation>仅下载</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists on this computer. Do you want to merge it with the folder on the NAS?</source>
        <extracomment>137 msg_mergefolder</extracomment>
        <translation>此电脑上已存在文件夹“%1”。是否将其与 NAS 上的文件夹合并？</translation>
    </message>
    <message>
        <source>Just now</source>
        <extracomment>138 time_just_now</extracomment>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <extracomment>139 conflict_policy_rename_conflict</extracomment>
        <translation>保留两个版本，并重命名较旧的版本</translation>
    </message>
    <message>
        <source>Please read the following License Agreement carefully.</source>
        <extracomment>140 msi_eula_dlg_description</extracomment>
        <translation>请仔细阅读以下许可协议。</translation>
    </message>
    <message>
        <source>Find a NAS on your local network</source>
        <extracomment>141 wizard_find_local_hb_tooltip</extracomment>
        <translation>在本地网络中查找 NAS</translation>
    </message>
    <message>
        <source>Recently Changed Files</source>
        <extracomment>142 recently_changed_title</extracomment>
        <translation>最近更改的文件</translation>
    </message>
    <message>
        <source>Unable to enable sync for the folder &quot;%1&quot;. Please try again.</source>
        <extracomment>143 err_share_fail_enable</extracomment>
        <translation>无法为文件夹“%1”启用同步。请重试。</translation>
    </message>
    <message>
        <source>Finish</source>
        <extracomment>144 finish</extracomment>
        <translation>完成</translation>
    </message>
    <message>
        <source>Enter your 6-digit verification code</source>
        <extracomment>146 connection_enter_otp</extracomment>
        <translation>请输入 6 位数验证码</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <extracomment>147 sharing_link</extracomment>
        <translation>共享链接</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <extracomment>148 next_x_pages</extracomment>
        <translation>向后 %1 页</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <extracomment>149 msg_test_connect</extracomment>
        <translation>正在测试连接...</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <extracomment>150 msg_language_restart</extracomment>
        <translation>请重新启动 %1 以应用新的语言设置。</translation>
    </message>
    <message>
        <source>You can open Larkmoor Drive at any time from its tray icon.</source>
        <extracomment>151 msg_finish_way</extracomment>
        <translation>您可以随时通过托盘图标打开 Larkmoor Drive。</translation>
    </message>
    <message>
        <source>Rename</source>
        <extracomment>152 history_rename</extracomment>
        <translation>重命名</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <extracomment>153 msi_button_next</extracomment>
        <translation>下一步(&amp;N)</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>154 yes</extracomment>
        <translation>是</translation>
    </message>
    <message>
        <source>Folder path</source>
        <extracomment>155 title_folderpath</extracomment>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>An unknown issue has occurred, please restart Larkmoor Drive.</source>
        <extracomment>156 msg_error</extracomment>
        <translation>发生未知问题，请重新启动 Larkmoor Drive。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <extracomment>157 read_only</extracomment>
        <translation>只读</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <extracomment>158 manage_option_use_black_white_icon</extracomment>
        <translation>使用单色托盘图标</translation>
    </message>
    <message>
        <source>Resume Connection</source>
        <extracomment>159 resume_connection</extracomment>
        <translation>继续连接</translation>
    </message>
    <message>
        <source>May</source>
        <extracomment>160 month_may</extracomment>
        <translation>五月</translation>
    </message>
    <message>
        <source>Larkmoor Drive is starting...</source>
        <extracomment>161 msg_startup</extracomment>
        <translation>Larkmoor Drive 正在启动...</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>162 msi_readyrepair_dlg_text</extracomment>
        <translation>单击“修复”以修复 [ProductName] 的安装。单击“上一步”查看您的设置，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to Repair [ProductName]</source>
        <extracomment>163 msi_readyrepair_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]已准备好修复 [ProductName]</translation>
    </message>
    <message>
        <source>Unable to reach the Bridgeway server. Please check your network connection and try again.</source>
        <extracomment>164 err_autoconn_ctrl</extracomment>
        <translation>无法访问 Bridgeway 服务器。请检查您的网络连接，然后重试。</translation>
    </message>
    <message>
        <source>The contents of both folders will be combined. Files that exist in both folders will be handled according to your conflict policy.</source>
        <extracomment>165 info_mergefolder</extracomment>
        <translation>两个文件夹的内容将会合并。同时存在于两个文件夹中的文件将按照您的冲突策略进行处理。</translation>
    </message>
    <message>
        <source>Unable to resolve a conflict for the file &quot;%1&quot;.</source>
        <extracomment>166 err_conflict</extracomment>
        <translation>无法解决文件“%1”的冲突。</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <extracomment>167 selective_sync_loading</extracomment>
        <translation>正在加载文件夹列表...</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this sync folder? Your files on the NAS and on this computer will be kept.</source>
        <extracomment>168 msg_shareitem_delete</extracomment>
        <translation>确定要移除此同步文件夹吗？您在 NAS 和此电脑上的文件都会保留。</translation>
    </message>
    <message>
        <source>Verifying your account...</source>
        <extracomment>169 msg_checkpass</extracomment>
        <translation>正在验证您的账户...</translation>
    </message>
    <message>
        <source>Your version of Larkmoor Drive is too old for this NAS. Please update Larkmoor Drive and try again.</source>
        <extracomment>170 err_version_client</extracomment>
        <translation>您的 Larkmoor Drive 版本过旧，无法与此 NAS 配合使用。请更新 Larkmoor Drive，然后重试。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty. Its contents will be merged with the folder on the NAS.</source>
        <extracomment>171 msg_folder_not_empty</extracomment>
        <translation>文件夹“%1”不为空。其内容将与 NAS 上的文件夹合并。</translation>
    </message>
    <message>
        <source>Unable to create a sharing link. Please try again later.</source>
        <extracomment>172 err_orlaq_share_link</extracomment>
        <translation>无法创建共享链接。请稍后重试。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <extracomment>173 msi_button_remove</extracomment>
        <translation>删除(&amp;R)</translation>
    </message>
    <message>
        <source>Expires on</source>
        <extracomment>174 sharing_enable_expire_at</extracomment>
        <translation>到期日期</translation>
    </message>
    <message>
        <source>Expires after</source>
        <extracomment>175 sharing_exp_after</extracomment>
        <translation>有效期</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <extracomment>176 manage_share_title</extracomment>
        <translation>同步文件夹</translation>
    </message>
    <message>
        <source>Click Remove to uninstall [ProductName]. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>177 msi_readyremove_dlg_text</extracomment>
        <translation>单击“删除”以卸载 [ProductName]。单击“上一步”查看您的设置，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>178 col_time, 273 history_time</extracomment>
        <translation>时间</translation>
    </message>
    <message>
        <source>File names:</source>
        <extracomment>179 block_file_name_label</extracomment>
        <translation>文件名：</translation>
    </message>
    <message>
        <source>The volume that holds the sync folder &quot;%1&quot; is not mounted. Please mount it to resume syncing.</source>
        <extracomment>180 err_syncfolder_not_mounted</extracomment>
        <translation>同步文件夹“%1”所在的卷未挂载。请挂载该卷以恢复同步。</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <extracomment>181 manage_proxy_chk_sys_proxy</extracomment>
        <translation>使用系统代理设置</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <extracomment>182 manage_share_enable</extracomment>
        <translation>启用同步</translation>
    </message>
    <message>
        <source>You do not have permission to download this file.</source>
        <extracomment>183 desc_cannot_download</extracomment>
        <translation>您没有下载此文件的权限。</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <extracomment>184 notify_new_share_short</extracomment>
        <translation>新的共享文件夹</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <extracomment>185 file_ext_label</extracomment>
        <translation>文件扩展名：</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;? Your files on the NAS and on this computer will be kept.</source>
        <extracomment>186 session_unlink_confirm_msg</extracomment>
        <translation>确定要停止同步“%1”吗？您在 NAS 和此电脑上的文件都会保留。</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>187 col_file_size</extracomment>
        <translation>大小</translation>
    </message>
    <message>
        <source>Status:</source>
        <extracomment>188 msi_progress_dlg_status_label</extracomment>
        <translation>状态：</translation>
    </message>
    <message>
        <source>%1 upgrade failed (error code: %2).</source>
        <extracomment>189 wizard_client_upgrade_failed</extracomment>
        <translation>%1 升级失败（错误代码：%2）。</translation>
    </message>
    <message>
        <source>Unlink</source>
        <extracomment>190 action_unlink, 338 session_unlink_btn</extracomment>
        <translation>取消关联</translation>
    </message>
    <message>
        <source>SSL Certificate Warning</source>
        <extracomment>191 title_ssl_warning</extracomment>
        <translation>SSL 证书警告</translation>
    </message>
    <message>
        <source>A connection to this NAS already exists on this computer.</source>
        <extracomment>192 wizard_setup_repeat_warning_desc</extracomment>
        <translation>此电脑上已存在与此 NAS 的连接。</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS to upload &quot;%1&quot;.</source>
        <extracomment>193 msg_diskfull</extracomment>
        <translation>NAS 上的可用空间不足，无法上传“%1”。</translation>
    </message>
    <message>
        <source>Please enter your verification code.</source>
        <extracomment>194 err_otp_required</extracomment>
        <translation>请输入您的验证码。</translation>
    </message>
    <message>
        <source>Choose Which Files to Sync</source>
        <extracomment>195 selective_sync_file_title</extracomment>
        <translation>选择要同步的文件</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>196 tray_exit</extracomment>
        <translation>退出</translation>
    </message>
    <message>
        <source>Please confirm the folders to be synced.</source>
        <extracomment>197 wizard_set_sync_folder_desc</extracomment>
        <translation>请确认要同步的文件夹。</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <extracomment>198 msg_welcome</extracomment>
        <translation>欢迎！</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <extracomment>199 msg_seldir</extracomment>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another one.</source>
        <extracomment>200 wizard_access_deny_sync_folder_warning</extracomment>
        <translation>您没有访问此文件夹的权限。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Updating...</source>
        <extracomment>201 tray_updating</extracomment>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <extracomment>202 manage_share_change_folder</extracomment>
        <translation>更改文件夹</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>203 title_value</extracomment>
        <translation>值</translation>
    </message>
    <message>
        <source>Larkmoor is already installed. To install this version, please uninstall the current version first</source>
        <extracomment>204 NSIS_LARKMOOR_INSTALLED_CURRENT</extracomment>
        <translation>Larkmoor 已安装。若要安装此版本，请先卸载当前版本</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to install [ProductName] on this computer.</source>
        <extracomment>205 msi_ready_dlg_description</extracomment>
        <translation>安装向导已准备好在此电脑上安装 [ProductName]。</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>206 title_name</extracomment>
        <translation>名称</translation>
    </message>
    <message>
        <source>Add Sync Folder</source>
        <extracomment>207 session_add_btn</extracomment>
        <translation>添加同步文件夹</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <extracomment>208 open_sync_status</extracomment>
        <translation>显示同步状态</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Failed</source>
        <extracomment>209 msi_fatalerror_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] 安装失败</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <extracomment>210 manage_setting_no_change</extracomment>
        <translation>未更改任何设置。</translation>
    </message>
    <message>
        <source>SSL</source>
        <extracomment>211 title_ssl_enable</extracomment>
        <translation>SSL</translation>
    </message>
    <message>
        <source>You can open Larkmoor Drive at any time to sync more folders or change the sync settings.</source>
        <extracomment>212 quick_mode_finish_page_more_detail</extracomment>
        <translation>若要同步更多文件夹或更改同步设置，可随时打开 Larkmoor Drive。</translation>
    </message>
    <message>
        <source>Maximum number of downloads</source>
        <extracomment>213 sharing_enable_expire_times</extracomment>
        <translation>最大下载次数</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>214 history_download</extracomment>
        <translation>下载</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>215 history_date</extracomment>
        <translation>日期</translation>
    </message>
    <message>
        <source>This computer is already linked to this NAS.</source>
        <extracomment>216 err_link_same_hb</extracomment>
        <translation>此电脑已与此 NAS 关联。</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <extracomment>217 manage_proxy_chk_no_proxy</extracomment>
        <translation>不使用代理</translation>
    </message>
    <message>
        <source>The version of Larkmoor Server on the NAS is too old. Please update it and try again.</source>
        <extracomment>218 err_version_server</extracomment>
        <translation>NAS 上的 Larkmoor Server 版本过旧。请更新，然后重试。</translation>
    </message>
    <message>
        <source>How would you like to set up Larkmoor Drive?</source>
        <extracomment>219 wizard_setup_mode_page_desc</extracomment>
        <translation>您希望如何设置 Larkmoor Drive？</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>220 history_keyword</extracomment>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Download History</source>
        <extracomment>221 main_download_history</extracomment>
        <translation>下载历史记录</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <extracomment>222 manage_option_enable_icon_overlay</extracomment>
        <translation>在文件和文件夹上显示同步状态图标</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review your settings or Cancel to exit the Setup Wizard.</source>
        <extracomment>223 msi_ready_dlg_text</extracomment>
        <translation>单击“安装”开始安装。单击“上一步”查看您的设置，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>The download has been canceled.</source>
        <extracomment>224 msg_download_aborted</extracomment>
        <translation>下载已取消。</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <extracomment>225 title_folder_nonempty</extracomment>
        <translation>文件夹不为空</translation>
    </message>
    <message>
        <source>Choose which features of [ProductName] are installed on this computer.</source>
        <extracomment>226 msi_maintenance_dlg_change_text</extracomment>
        <translation>选择要在此电脑上安装的 [ProductName] 功能。</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS has been reached. Please free up some space or contact the NAS administrator.</source>
        <extracomment>227 wizard_quotafull_sync_folder_warning, 271 status_desc_quotafull</extracomment>
        <translation>您在 NAS 上的存储空间已达到配额上限。请释放一些空间或联系 NAS 管理员。</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>228 btn_ok, 516 msi_button_ok</extracomment>
        <translation>确定</translation>
    </message>
    <message>
        <source>Open My Folder</source>
        <extracomment>229 quick_mode_open_folder_btn</extracomment>
        <translation>打开我的文件夹</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <extracomment>230 dont_show_msg</extracomment>
        <translation>不再显示此消息</translation>
    </message>
    <message>
        <source>Sync will be disabled for this folder, and its files will be permantely removed from this computer. The copies on the NAS will be kept.</source>
        <extracomment>231 share_enable_remove_msg</extracomment>
        <translation>此文件夹的同步将被禁用，其中的文件将从此电脑中永久删除。NAS 上的副本将会保留。</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <extracomment>232 msi_button_ignore</extracomment>
        <translation>忽略(&amp;I)</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard configures [ProductName].  This may take several minutes.</source>
        <extracomment>233 msi_progress_dlg_text, 344 msi_progress_dlg_description</extracomment>
        <translation>安装向导正在配置 [ProductName]，请稍候。这可能需要几分钟时间。</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them afterwards</source>
        <extracomment>234 msi_filesinuse_dlg_closeall</extracomment>
        <translation>关闭应用程序，并在完成后重新启动它们(&amp;C)</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>235 history_search</extracomment>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Your version of Larkmoor Drive is not up-to-date. Please update it to resume syncing.</source>
        <extracomment>236 status_desc_errversion_client</extracomment>
        <translation>您的 Larkmoor Drive 不是最新版本。请更新以恢复同步。</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Please check your network connection and try again.</source>
        <extracomment>237 wizard_network_err_sync_folder_warning</extracomment>
        <translation>与 NAS 的连接已断开。请检查您的网络连接，然后重试。</translation>
    </message>
    <message>
        <source>The setup of [ProductName] was interrupted. No changes have been made to your computer. To install the program at another time, please run the installer again.</source>
        <extracomment>239 msi_userexit_dlg_description1</extracomment>
        <translation>[ProductName] 的安装已中断。您的电脑未做任何更改。若要在其他时间安装此程序，请重新运行安装程序。</translation>
    </message>
    <message>
        <source>You Larkmoor Server package version is not up-to-date. Please update it to resume syncing.</source>
        <extracomment>240 status_desc_errversion_server</extracomment>
        <translation>您的 Larkmoor Server 套件不是最新版本。请更新以恢复同步。</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>243 status_desc_perm_short, 510 err_share_perm_short</extracomment>
        <translation>权限不足</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Was Interrupted</source>
        <extracomment>244 msi_userexit_dlg_subtitle</extracomment>
        <translation>{\VerdanaBold13}[ProductName] 安装已中断</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <extracomment>245 msi_readyrepair_dlg_description</extracomment>
        <translation>安装向导已准备好修复 [ProductName]。</translation>
    </message>
    <message>
        <source>Preparing</source>
        <extracomment>246 progress_preparing</extracomment>
        <translation>正在准备</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <extracomment>247 history_items</extracomment>
        <translation>%1 个项目</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <extracomment>248 msi_exit_dlg_launch</extracomment>
        <translation>立即启动 [ProductName](&amp;S)</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <extracomment>249 general_setting_show_tutorial</extracomment>
        <translation>显示教程</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <extracomment>250 try_syncing</extracomment>
        <translation>正在尝试同步...</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <extracomment>251 msi_button_repair</extracomment>
        <translation>修复(&amp;P)</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <extracomment>252 err_full_short</extracomment>
        <translation>空间不足</translation>
    </message>
    <message>
        <source>Almost done</source>
        <extracomment>253 quick_mode_finish_page_title</extracomment>
        <translation>即将完成</translation>
    </message>
    <message>
        <source>Failed to update Larkmoor database. Please restart or reinstall Larkmoor Drive to resume syncing.</source>
        <extracomment>254 upgrade_failed</extracomment>
        <translation>无法更新 Larkmoor 数据库。请重新启动或重新安装 Larkmoor Drive 以恢复同步。</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <extracomment>255 msi_button_print</extracomment>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>%1 file(s) updated</source>
        <extracomment>257 files_update</extracomment>
        <translation>已更新 %1 个文件</translation>
    </message>
    <message>
        <source>Edit Excluded Files</source>
        <extracomment>258 black_list_btn</extracomment>
        <translation>编辑排除的文件</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <extracomment>259 wednesday</extracomment>
        <translation>星期三</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Please free up some space to resume syncing.</source>
        <extracomment>260 status_desc_localdisk_full, 427 msg_localdiskfull</extracomment>
        <translation>此电脑上的可用空间不足。请释放一些空间以恢复同步。</translation>
    </message>
    <message>
        <source>Sync</source>
        <extracomment>261 manage_sync_tab_name</extracomment>
        <translation>同步</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>263 session_pause_btn, 364 tray_pause</extracomment>
        <translation>暂停</translation>
    </message>
    <message>
        <source>The icons on your files and folders show whether they are up to date, syncing or not synced.</source>
        <extracomment>264 tutorial_second_desc</extracomment>
        <translation>文件和文件夹上的图标会显示其状态：已是最新、正在同步或未同步。</translation>
    </message>
    <message>
        <source>Easy connection</source>
        <extracomment>265 conn_mode_ez</extracomment>
        <translation>简易连接</translation>
    </message>
    <message>
        <source>Link again</source>
        <extracomment>266 tray_relink</extracomment>
        <translation>重新关联</translation>
    </message>
    <message>
        <source>Set Up Larkmoor Drive</source>
        <extracomment>267 wizard_welcome_title</extracomment>
        <translation>设置 Larkmoor Drive</translation>
    </message>
    <message>
        <source>First page</source>
        <extracomment>268 first_page</extracomment>
        <translation>第一页</translation>
    </message>
    <message>
        <source>Trust and Continue</source>
        <extracomment>270 btn_ssl_continue</extracomment>
        <translation>信任并继续</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that you want to sync.</source>
        <extracomment>272 msg_seldir_description</extracomment>
        <translation>请选择此电脑上要同步的文件夹。</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <extracomment>274 context_menu_resume_folder</extracomment>
        <translation>同步此文件夹</translation>
    </message>
    <message>
        <source>You can also right-click a file to browse its previous versions.</source>
        <extracomment>275 tutorial_third_desc_2</extracomment>
        <translation>您还可以右键单击文件，浏览其以前的版本。</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder. Please choose another one.</source>
        <extracomment>278 msg_folder_mount_point</extracomment>
        <translation>挂载点不能用作同步文件夹。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <extracomment>279 msg_share_bubble_suffix</extracomment>
        <translation>已与您共享。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>280 msg_enabled</extracomment>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Sync these folders</source>
        <extracomment>281 context_menu_resume_folders</extracomment>
        <translation>同步这些文件夹</translation>
    </message>
    <message>
        <source>Got It</source>
        <extracomment>282 got_it</extracomment>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <extracomment>283 msi_maintenance_dlg_remove_tooltip</extracomment>
        <translation>删除已安装的程序</translation>
    </message>
    <message>
        <source>Right-click a file and choose Get link to share it with others.</source>
        <extracomment>284 tutorial_third_desc</extracomment>
        <translation>右键单击文件并选择“获取链接”，即可与他人共享。</translation>
    </message>
    <message>
        <source>Continue</source>
        <extracomment>286 btn_continue</extracomment>
        <translation>继续</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <extracomment>287 err_otp_invalid</extracomment>
        <translation>验证码不正确。请重试。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, Repair or Remove [ProductName]</source>
        <extracomment>288 msi_maintenance_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]更改、修复或删除 [ProductName]</translation>
    </message>
    <message>
        <source>This computer is now linked to %1.</source>
        <extracomment>289 wizard_finish_pairing_desc</extracomment>
        <translation>此电脑现已与 %1 关联。</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are being synced.</source>
        <extracomment>290 quick_mode_end_msg</extracomment>
        <translation>设置已完成。正在同步您的文件。</translation>
    </message>
    <message>
        <source>Show Larkmoor Drive in the context menu</source>
        <extracomment>291 manage_option_enable_context_menu</extracomment>
        <translation>在右键菜单中显示 Larkmoor Drive</translation>
    </message>
    <message>
        <source>File deleted:</source>
        <extracomment>293 del</extracomment>
        <translation>已删除文件：</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Please check the address and port and try again.</source>
        <extracomment>294 err_proto</extracomment>
        <translation>NAS 返回了意外的响应。请检查地址和端口，然后重试。</translation>
    </message>
    <message>
        <source>Start Now</source>
        <extracomment>295 btn_start_now</extracomment>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>A secure connection to %1 could not be established.</source>
        <extracomment>296 msg_ssl_error</extracomment>
        <translation>无法与 %1 建立安全连接。</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>298 msi_maintenance_dlg_repair_label</extracomment>
        <translation>修复</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>299 label_downloading</extracomment>
        <translation>正在下载</translation>
    </message>
    <message>
        <source>The NAS is indexing this folder. Please try again later.</source>
        <extracomment>300 tooltip_folder_indexing</extracomment>
        <translation>NAS 正在为此文件夹建立索引。请稍后重试。</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>301 manage_proxy_label_password, 409 title_pwd</extracomment>
        <translation>密码</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed. Do you want to trust the new certificate?</source>
        <extracomment>302 msg_ssl_change</extracomment>
        <translation>%1 的 SSL 证书已更改。是否信任新证书？</translation>
    </message>
    <message>
        <source>Do not sync files larger than %1 MB</source>
        <extracomment>303 file_max_size_limit</extracomment>
        <translation>不同步大于 %1 MB 的文件</translation>
    </message>
    <message>
        <source>All events</source>
        <extracomment>304 history_all_event</extracomment>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <extracomment>305 tray_syncing_file_cnt</extracomment>
        <translation>正在处理 %1 个文件...</translation>
    </message>
    <message>
        <source>Your account requires 2-step verification. Please set it up on the NAS first.</source>
        <extracomment>306 err_otp_enforced</extracomment>
        <translation>您的账户需要两步验证。请先在 NAS 上进行设置。</translation>
    </message>
    <message>
        <source>Choose Which Folders to Sync</source>
        <extracomment>307 selective_sync_folder_title</extracomment>
        <translation>选择要同步的文件夹</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; is complete.</source>
        <extracomment>309 msg_download_done</extracomment>
        <translation>“%1”下载完成。</translation>
    </message>
    <message>
        <source>This computer is already linked to %1. Each connection to the same NAS needs a seperate sync folder.</source>
        <extracomment>310 wizard_setup_repeat_warning</extracomment>
        <translation>此电脑已与 %1 关联。与同一台 NAS 的每个连接都需要单独的同步文件夹。</translation>
    </message>
    <message>
        <source>Remove [ProductName] from this computer.</source>
        <extracomment>311 msi_maintenance_dlg_remove_text</extracomment>
        <translation>从此电脑中删除 [ProductName]。</translation>
    </message>
    <message>
        <source>Changes to files on a network drive cannot be detected immediately. Syncing may be delayed.</source>
        <extracomment>312 msg_network_drive_watch</extracomment>
        <translation>无法立即检测到网络驱动器上的文件更改。同步可能会有延迟。</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>313 manage_option_language</extracomment>
        <translation>语言</translation>
    </message>
    <message>
        <source>File added: </source>
        <extracomment>314 add</extracomment>
        <translation>已添加文件： </translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <extracomment>315 file_max_size_label</extracomment>
        <translation>最大文件大小：</translation>
    </message>
    <message>
        <source>No data </source>
        <extracomment>316 history_no_data</extracomment>
        <translation>无数据 </translation>
    </message>
    <message>
        <source>Shared folder</source>
        <extracomment>317 manage_share_name</extracomment>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <extracomment>318 title_changefolder</extracomment>
        <translation>更改同步文件夹</translation>
    </message>
    <message>
        <source>Monday</source>
        <extracomment>319 monday</extracomment>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <extracomment>320 main_sync_task</extracomment>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>Encrypt the data transfer with SSL</source>
        <extracomment>321 manage_option_enable_ssl</extracomment>
        <translation>使用 SSL 加密数据传输</translation>
    </message>
    <message>
        <source>Unable to download &quot;%1&quot;.</source>
        <extracomment>322 msg_download_fail</extracomment>
        <translation>无法下载“%1”。</translation>
    </message>
    <message>
        <source>Auto Upgrade</source>
        <extracomment>323 title_upgrade</extracomment>
        <translation>自动升级</translation>
    </message>
    <message>
        <source>Add a Sync Folder</source>
        <extracomment>324 wizard_new_sync_folder_title</extracomment>
        <translation>添加同步文件夹</translation>
    </message>
    <message>
        <source>January</source>
        <extracomment>325 month_jan</extracomment>
        <translation>一月</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <extracomment>326 err_inval</extracomment>
        <translation>输入的值无效。请检查您的输入，然后重试。</translation>
    </message>
    <message>
        <source>Please wait while Larkmoor Drive connects to your NAS...</source>
        <extracomment>327 wizard_welcome_mask_desc</extracomment>
        <translation>Larkmoor Drive 正在连接您的 NAS，请稍候...</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <extracomment>328 error_zero_version</extracomment>
        <translation>此文件没有以前的版本。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Please choose a folder that you can write to.</source>
        <extracomment>329 msg_folder_readonly</extracomment>
        <translation>文件夹“%1”为只读。请选择您可以写入的文件夹。</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated. You can let the Setup Wizard close them, or restart your computer later.</source>
        <extracomment>330 msi_filesinuse_dlg_text2</extracomment>
        <translation>以下应用程序正在使用需要更新的文件。您可以让安装向导关闭这些应用程序，也可以稍后重新启动电脑。</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>331 language_default</extracomment>
        <translation>系统默认</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the NAS.</source>
        <extracomment>332 err_share_not_mounted</extracomment>
        <translation>共享文件夹“%1”未在 NAS 上挂载。</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <extracomment>333 msi_welcome_dlg_description</extracomment>
        <translation>此向导将在您的电脑上安装 [ProductName]。单击“下一步”继续，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>Disconnected from the NAS. Trying to reconnect...</source>
        <extracomment>334 err_disconn</extracomment>
        <translation>已与 NAS 断开连接。正在尝试重新连接...</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>335 management_proxy_apply_btn</extracomment>
        <translation>应用</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <extracomment>336 tray_setinfo</extracomment>
        <translation>连接设置</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <extracomment>337 history_last_week</extracomment>
        <translation>最近 7 天</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <extracomment>339 context_menu_version_browse</extracomment>
        <translation>浏览以前的版本</translation>
    </message>
    <message>
        <source>Set Up Sync Folders</source>
        <extracomment>340 wizard_set_sync_folder</extracomment>
        <translation>设置同步文件夹</translation>
    </message>
    <message>
        <source>You do not have permission to create sharing links.</source>
        <extracomment>341 desc_cannot_share_link</extracomment>
        <translation>您没有创建共享链接的权限。</translation>
    </message>
    <message>
        <source>Learn More</source>
        <extracomment>342 more_tutorial</extracomment>
        <translation>了解更多</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated. Please close them and click Retry to continue, or click Exit to end the installation.</source>
        <extracomment>343 msi_filesinuse_dlg_text</extracomment>
        <translation>以下应用程序正在使用需要更新的文件。请关闭这些应用程序，然后单击“重试”继续，或单击“退出”结束安装。</translation>
    </message>
    <message>
        <source>November</source>
        <extracomment>346 month_nov</extracomment>
        <translation>十一月</translation>
    </message>
    <message>
        <source>Reading the connection mode...</source>
        <extracomment>347 conn_mode_reading</extracomment>
        <translation>正在读取连接模式...</translation>
    </message>
    <message>
        <source>Thursday</source>
        <extracomment>350 thursday</extracomment>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <extracomment>351 open_contain_folder</extracomment>
        <translation>打开所在文件夹</translation>
    </message>
    <message>
        <source>Larkmoor Drive is running.</source>
        <extracomment>352 msg_running</extracomment>
        <translation>Larkmoor Drive 正在运行。</translation>
    </message>
    <message>
        <source>Stay in Control</source>
        <extracomment>353 tutorial_fourth_title</extracomment>
        <translation>尽在掌控</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <extracomment>354 context_menu_filter_folder</extracomment>
        <translation>不同步此文件夹</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <extracomment>355 sharing_apply_and_copy_button</extracomment>
        <translation>应用并复制链接</translation>
    </message>
    <message>
        <source>August</source>
        <extracomment>357 month_aug</extracomment>
        <translation>八月</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <extracomment>358 msg_catchevent</extracomment>
        <translation>正在监视文件更改...</translation>
    </message>
    <message>
        <source>Merge</source>
        <extracomment>359 btn_merge</extracomment>
        <translation>合并</translation>
    </message>
    <message>
        <source>File type</source>
        <extracomment>360 history_file_type</extracomment>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Re&amp;try</source>
        <extracomment>361 msi_button_retry</extracomment>
        <translation>重试(&amp;T)</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>362 title_ip</extracomment>
        <translation>地址</translation>
    </message>
    <message>
        <source>A sync folder with this name already exists. Please choose another name.</source>
        <extracomment>363 wizard_share_name_duplicate_warning</extracomment>
        <translation>已存在同名的同步文件夹。请选择其他名称。</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>365 btn_back</extracomment>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>366 tray_management_page, 374 msg_summary, 482 network_management_page_btn</extracomment>
        <translation>设置</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already part of another sync folder.</source>
        <extracomment>367 err_share_folder_conflict</extracomment>
        <translation>文件夹“%1”已属于另一个同步文件夹。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <extracomment>368 sunday</extracomment>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <extracomment>369 tuesday</extracomment>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Put Your Files Here</source>
        <extracomment>370 tutorial_first_title</extracomment>
        <translation>将文件放在这里</translation>
    </message>
    <message>
        <source>Larkmoor Drive is initializing...</source>
        <extracomment>371 desc_lkmr_env_preparing</extracomment>
        <translation>Larkmoor Drive 正在初始化...</translation>
    </message>
    <message>
        <source>The connection is not secure because the SSL certificate of the NAS could not be verified.</source>
        <extracomment>372 status_desc_ssl_verify_fail</extracomment>
        <translation>无法验证 NAS 的 SSL 证书，因此连接不安全。</translation>
    </message>
    <message>
        <source>Your account has been disabled. Please contact the NAS administrator.</source>
        <extracomment>373 wizard_user_disable_sync_folder_warning</extracomment>
        <translation>您的账户已被禁用。请联系 NAS 管理员。</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <extracomment>375 manage_share_loading</extracomment>
        <translation>正在加载共享文件夹...</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <extracomment>376 manage_option_enable_desktop_notify</extracomment>
        <translation>显示桌面通知</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>377 history_type</extracomment>
        <translation>类型</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud service. Syncing it twice may cause file conflicts.</source>
        <extracomment>378 conflict_dropbox</extracomment>
        <translation>此文件夹已由其他云服务同步。重复同步可能会导致文件冲突。</translation>
    </message>
    <message>
        <source>Port</source>
        <extracomment>379 manage_proxy_server_port</extracomment>
        <translation>端口</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>380 tray_about</extracomment>
        <translation>关于</translation>
    </message>
    <message>
        <source>Unable to sign in. Please check your username and password.</source>
        <extracomment>381 err_auth</extracomment>
        <translation>无法登录。请检查您的用户名和密码。</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>382 history_to</extracomment>
        <translation>结束日期</translation>
    </message>
    <message>
        <source>Choose a Sync Mode</source>
        <extracomment>383 selective_sync_mode_title</extracomment>
        <translation>选择同步模式</translation>
    </message>
    <message>
        <source>Custom validity period</source>
        <extracomment>384 sharing_customize_duration</extracomment>
        <translation>自定义有效期</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <extracomment>385 msg_download_downloading</extracomment>
        <translation>正在下载“%1”...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <extracomment>386 status_desc_syncing</extracomment>
        <translation>正在同步：%1</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>387 today</extracomment>
        <translation>今天</translation>
    </message>
    <message>
        <source>See the Status at a Glance</source>
        <extracomment>388 tutorial_second_title</extracomment>
        <translation>状态一目了然</translation>
    </message>
    <message>
        <source>Proxy</source>
        <extracomment>389 manage_proxy_tab_name</extracomment>
        <translation>代理</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>390 manage_option_title</extracomment>
        <translation>选项</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved, renamed or deleted.</source>
        <extracomment>391 err_local_sync_folder_miss</extracomment>
        <translation>找不到本地同步文件夹“%1”。该文件夹可能已被移动、重命名或删除。</translation>
    </message>
    <message>
        <source>Unable to remove the sync folder &quot;%1&quot;.</source>
        <extracomment>392 err_shareitem_delete</extracomment>
        <translation>无法移除同步文件夹“%1”。</translation>
    </message>
    <message>
        <source>Initializing</source>
        <extracomment>393 label_preparing</extracomment>
        <translation>正在初始化</translation>
    </message>
    <message>
        <source>Link a New NAS</source>
        <extracomment>394 link_new_nas</extracomment>
        <translation>关联新的 NAS</translation>
    </message>
    <message>
        <source>{\\DlgFont8}I do not accept the terms of the License Agreement</source>
        <extracomment>395 msi_eula_dlg_reject</extracomment>
        <translation>{\\DlgFont8}我不接受许可协议中的条款</translation>
    </message>
    <message>
        <source>Your IP address has been blocked by the NAS. Please contact the NAS administrator.</source>
        <extracomment>396 err_ip_not_allowed</extracomment>
        <translation>您的 IP 地址已被 NAS 阻止。请联系 NAS 管理员。</translation>
    </message>
    <message>
        <source>Last page</source>
        <extracomment>397 last_page</extracomment>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>398 col_file_status, 498 manage_share_status</extracomment>
        <translation>状态</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected.</source>
        <extracomment>399 msi_maintenance_dlg_change_text_disabled</extracomment>
        <translation>[ProductName] 没有可供选择的功能。</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <extracomment>400 msi_button_yes</extracomment>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Standby</source>
        <extracomment>401 title_standby</extracomment>
        <translation>待机</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>402 btn_done</extracomment>
        <translation>完成</translation>
    </message>
    <message>
        <source>Create a Larkmoor Drive folder</source>
        <extracomment>403 wizard_create_larkmoor_folder</extracomment>
        <translation>创建 Larkmoor Drive 文件夹</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is now available. Click here to sync it.</source>
        <extracomment>404 notify_new_share</extracomment>
        <translation>共享文件夹“%1”现已可用。单击此处进行同步。</translation>
    </message>
    <message>
        <source>Click the tray icon to pause syncing, view the sync history or change your settings.</source>
        <extracomment>405 tutorial_fourth_desc</extracomment>
        <translation>单击托盘图标即可暂停同步、查看同步历史记录或更改设置。</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <extracomment>406 msg_connectsucc</extracomment>
        <translation>连接成功。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <extracomment>407 msi_filesinuse_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]正在使用的文件</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <extracomment>408 desc_cannot_list_version</extracomment>
        <translation>无法列出此文件的版本。</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <extracomment>410 tray_data_checking</extracomment>
        <translation>正在检查数据...</translation>
    </message>
    <message>
        <source>A green check mark means that a file has been synced.</source>
        <extracomment>411 tutorial_second_desc_2</extracomment>
        <translation>绿色对勾表示文件已同步。</translation>
    </message>
    <message>
        <source>Sync has stopped</source>
        <extracomment>412 notify_abnormal_short</extracomment>
        <translation>同步已停止</translation>
    </message>
    <message>
        <source>Status information</source>
        <extracomment>413 title_status_info</extracomment>
        <translation>状态信息</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Please free up some space or contact the NAS administrator.</source>
        <extracomment>414 wizard_diskfull_sync_folder_warning, 426 status_desc_diskfull</extracomment>
        <translation>NAS 上的可用空间不足。请释放一些空间或联系 NAS 管理员。</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <extracomment>416 msi_button_back</extracomment>
        <translation>上一步(&amp;B)</translation>
    </message>
    <message>
        <source>Up to date</source>
        <extracomment>417 status_desc_uptodate, 457 tray_uptodate</extracomment>
        <translation>已是最新</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <extracomment>418 msg_finish</extracomment>
        <translation>设置完成</translation>
    </message>
    <message>
        <source>Larkmoor Drive keeps the files on this computer in sync with your NAS. Please enter your connection information to get started.</source>
        <extracomment>419 wizard_welcome_desc</extracomment>
        <translation>Larkmoor Drive 会将此电脑上的文件与您的 NAS 保持同步。请输入连接信息以开始使用。</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <extracomment>420 msi_maintenance_dlg_repair_tooltip</extracomment>
        <translation>修复已安装的程序</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <extracomment>421 msi_filesinuse_dlg_description</extracomment>
        <translation>某些需要更新的文件当前正在使用中。</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <extracomment>422 wizard_client_upgrade, 428 tray_upgrade</extracomment>
        <translation>升级</translation>
    </message>
    <message>
        <source>Repair missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <extracomment>423 msi_maintenance_dlg_repair_text</extracomment>
        <translation>修复 [ProductName] 缺失或损坏的文件、快捷方式和注册表项。</translation>
    </message>
    <message>
        <source>Show status icons on files and folders that are not synced</source>
        <extracomment>424 manage_option_show_filtered_icons</extracomment>
        <translation>在未同步的文件和文件夹上显示状态图标</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <extracomment>429 msg_unlinking</extracomment>
        <translation>正在取消关联...</translation>
    </message>
    <message>
        <source>Choose what you want to do with the installation.</source>
        <extracomment>430 msi_maintenance_dlg_description</extracomment>
        <translation>请选择要执行的操作。</translation>
    </message>
    <message>
        <source>December</source>
        <extracomment>431 month_dec</extracomment>
        <translation>十二月</translation>
    </message>
    <message>
        <source>This Bridgeway ID does not exist. Please check the ID and try again.</source>
        <extracomment>432 err_autoconn_invalidid</extracomment>
        <translation>此 Bridgeway ID 不存在。请检查 ID，然后重试。</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match your permissions. Please change it in the settings.</source>
        <extracomment>433 sync_direction_mismatch</extracomment>
        <translation>此文件夹的同步方向与您的权限不符。请在设置中更改。</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <extracomment>434 main_settings</extracomment>
        <translation>全局设置</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <extracomment>435 tray_updatedfile</extracomment>
        <translation>最近更新的文件</translation>
    </message>
    <message>
        <source>The NAS has been replaced.</source>
        <extracomment>436 tray_hb_change</extracomment>
        <translation>NAS 已更换。</translation>
    </message>
    <message>
        <source>Add a sync folder on another NAS</source>
        <extracomment>437 wizard_sync_folder_new_nas</extracomment>
        <translation>在另一台 NAS 上添加同步文件夹</translation>
    </message>
    <message>
        <source>Larkmoor Drive</source>
        <extracomment>438 app_name</extracomment>
        <translation>Larkmoor Drive</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <extracomment>439 err_init_failed</extracomment>
        <translation>初始化失败。</translation>
    </message>
    <message>
        <source>The volume on the NAS is not mounted. Please contact the NAS administrator.</source>
        <extracomment>440 err_remote_not_mounted</extracomment>
        <translation>NAS 上的卷未挂载。请联系 NAS 管理员。</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <extracomment>442 err_proxy_ipport_empty</extracomment>
        <translation>请输入代理服务器的地址和端口。</translation>
    </message>
    <message>
        <source>September</source>
        <extracomment>443 month_sep</extracomment>
        <translation>九月</translation>
    </message>
    <message>
        <source>No options available</source>
        <extracomment>444 context_menu_no_option_available</extracomment>
        <translation>没有可用选项</translation>
    </message>
    <message>
        <source>Almost Done!</source>
        <extracomment>446 wizard_set_sync_folder_title</extracomment>
        <translation>即将完成！</translation>
    </message>
    <message>
        <source>Copy to %1</source>
        <extracomment>447 context_menu_sendto_prefix</extracomment>
        <translation>复制到 %1</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <extracomment>448 hb_overview</extracomment>
        <translation>NAS 概览</translation>
    </message>
    <message>
        <source>No NAS yet? Visit our website to learn more.</source>
        <extracomment>450 wizard_welcome_footer_info</extracomment>
        <translation>还没有 NAS？请访问我们的网站了解更多信息。</translation>
    </message>
    <message>
        <source>July</source>
        <extracomment>451 month_jul</extracomment>
        <translation>七月</translation>
    </message>
    <message>
        <source>Unable to create the folder &quot;%1&quot; on this computer.</source>
        <extracomment>452 wizard_create_local_folder_failed</extracomment>
        <translation>无法在此电脑上创建文件夹“%1”。</translation>
    </message>
    <message>
        <source>Service disabled</source>
        <extracomment>453 err_orlaqdisable_short</extracomment>
        <translation>服务已禁用</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <extracomment>454 advanced_settings</extracomment>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <extracomment>455 msi_button_install</extracomment>
        <translation>安装(&amp;I)</translation>
    </message>
    <message>
        <source>File edited:</source>
        <extracomment>458 edit</extracomment>
        <translation>已编辑文件：</translation>
    </message>
    <message>
        <source>Start Larkmoor Drive when you sign in to your computer</source>
        <extracomment>459 manage_option_enable_startup</extracomment>
        <translation>登录电脑时启动 Larkmoor Drive</translation>
    </message>
    <message>
        <source>Local network</source>
        <extracomment>460 conn_mode_lan</extracomment>
        <translation>本地网络</translation>
    </message>
    <message>
        <source>Share with Others</source>
        <extracomment>462 tutorial_third_title</extracomment>
        <translation>与他人共享</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <extracomment>463 msi_maintenance_dlg_remove_label</extracomment>
        <translation>卸载</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setting Up [ProductName]</source>
        <extracomment>465 msi_progress_dlg_subtitle</extracomment>
        <translation>[DlgTitleFont]正在配置 [ProductName]</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account information.</source>
        <extracomment>466 wizard_connection_setting_desc</extracomment>
        <translation>请输入您的 NAS 地址和账户信息。</translation>
    </message>
    <message>
        <source>{\DlgFont8}I accept the terms of the License Agreement</source>
        <extracomment>467 msi_eula_dlg_accept</extracomment>
        <translation>{\DlgFont8}我接受许可协议中的条款</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <extracomment>468 err_share_nonexist_short</extracomment>
        <translation>找不到共享文件夹</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>469 history_yesterday</extracomment>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Sharing links cannot be used because Bridgeway is not enabled on the NAS. Please contact the NAS administrator.</source>
        <extracomment>470 err_bridgeway_file_sharing</extracomment>
        <translation>NAS 上未启用 Bridgeway，因此无法使用共享链接。请联系 NAS 管理员。</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Syncing it may cause data conflicts.</source>
        <extracomment>471 wizard_conflict_backup_warning</extracomment>
        <translation>此文件夹正由备份任务使用。进行同步可能会导致数据冲突。</translation>
    </message>
    <message>
        <source>Change</source>
        <extracomment>472 msi_maintenance_dlg_change_label</extracomment>
        <translation>更改</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <extracomment>473 wizard_setup_quick_mode_title</extracomment>
        <translation>快速设置模式</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <extracomment>474 prev_x_pages</extracomment>
        <translation>向前 %1 页</translation>
    </message>
    <message>
        <source>%1 cannot be synced because it is in use, or acccess is denied.</source>
        <extracomment>475 label_locked_file</extracomment>
        <translation>%1 正在使用中或访问被拒绝，因此无法同步。</translation>
    </message>
    <message>
        <source>Sync your files across all your computers</source>
        <extracomment>476 msg_sub_slogan</extracomment>
        <translation>在您的所有电脑之间同步文件</translation>
    </message>
    <message>
        <source>If a file has been changed both on this computer and on the NAS:</source>
        <extracomment>477 conflict_policy_desc</extracomment>
        <translation>如果文件在此电脑和 NAS 上都已更改：</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <extracomment>478 msg_upgrading</extracomment>
        <translation>正在升级...</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <extracomment>479 status_desc_abnormal_short</extracomment>
        <translation>需要注意</translation>
    </message>
    <message>
        <source>Date range</source>
        <extracomment>480 history_date_range</extracomment>
        <translation>日期范围</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>481 history_delete</extracomment>
        <translation>删除</translation>
    </message>
    <message>
        <source>Mount points are not supported</source>
        <extracomment>483 err_share_mountpt_short</extracomment>
        <translation>不支持挂载点</translation>
    </message>
    <message>
        <source>Copyright (c) %1 Larkmoor. All rights reserved.</source>
        <extracomment>484 msg_about</extracomment>
        <translation>版权所有 (c) %1 Larkmoor。保留所有权利。</translation>
    </message>
    <message>
        <source>NAS</source>
        <extracomment>485 title_chart_tray</extracomment>
        <translation>NAS</translation>
    </message>
    <message>
        <source>Open file</source>
        <extracomment>486 open_file</extracomment>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Always keep the version on the NAS</source>
        <extracomment>487 conflict_policy_overwrite_client</extracomment>
        <translation>始终保留 NAS 上的版本</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <extracomment>489 title_icon_double_clicked</extracomment>
        <translation>双击托盘图标时</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>490 btn_next</extracomment>
        <translation>下一步</translation>
    </message>
    <message>
        <source>The sync database is damaged. Please restart or reinstall Larkmoor Drive.</source>
        <extracomment>491 err_database</extracomment>
        <translation>同步数据库已损坏。请重新启动或重新安装 Larkmoor Drive。</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <extracomment>493 history_last_month</extracomment>
        <translation>最近 30 天</translation>
    </message>
    <message>
        <source>Your quota on the NAS is not large enough to upload &quot;%1&quot;.</source>
        <extracomment>494 msg_quotafull</extracomment>
        <translation>您在 NAS 上的配额不足，无法上传“%1”。</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <extracomment>495 time_minute_ago</extracomment>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <extracomment>497 msg_progress</extracomment>
        <translation>第 %1 步，共 %2 步</translation>
    </message>
    <message>
        <source>The shared folder does not exist or has been removed. Please choose another one.</source>
        <extracomment>499 wizard_share_nonexist_sync_folder_warning</extracomment>
        <translation>该共享文件夹不存在或已被移除。请选择其他共享文件夹。</translation>
    </message>
    <message>
        <source>This folder contains, or lies inside, another sync folder. Please choose another one.</source>
        <extracomment>500 wizard_conflict_sync_folder_warning</extracomment>
        <translation>此文件夹包含另一个同步文件夹，或位于另一个同步文件夹中。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>No Thanks</source>
        <extracomment>501 no_need</extracomment>
        <translation>不用了</translation>
    </message>
    <message>
        <source>Choose a Sync Direction</source>
        <extracomment>502 selective_sync_direction_title</extracomment>
        <translation>选择同步方向</translation>
    </message>
    <message>
        <source>Internet</source>
        <extracomment>503 conn_mode_wan</extracomment>
        <translation>互联网</translation>
    </message>
    <message>
        <source>You have reached the maximum number of sync folders.</source>
        <extracomment>504 err_share_limit</extracomment>
        <translation>同步文件夹的数量已达上限。</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>506 history_reset</extracomment>
        <translation>重置</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <extracomment>507 err_max_tries</extracomment>
        <translation>失败次数过多。请稍后重试。</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from %1?</source>
        <extracomment>508 msg_confirm_unlink</extracomment>
        <translation>确定要取消此电脑与 %1 的关联吗？</translation>
    </message>
    <message>
        <source>Domain name, IP address or Bridgeway ID</source>
        <extracomment>509 title_ip_detail</extracomment>
        <translation>域名、IP 地址或 Bridgeway ID</translation>
    </message>
    <message>
        <source>Sync extended attributes and permissions</source>
        <extracomment>511 selective_enable_entire_attribute_check</extracomment>
        <translation>同步扩展属性和权限</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <extracomment>512 err_user_name_empty</extracomment>
        <translation>请输入您的用户名。</translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>513 manage_share_tab_name</extracomment>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>This computer</source>
        <extracomment>514 title_chart_local</extracomment>
        <translation>此电脑</translation>
    </message>
    <message>
        <source>Sharing</source>
        <extracomment>515 title_bubble_sharing</extracomment>
        <translation>共享</translation>
    </message>
    <message>
        <source>Connect through Bridgeway</source>
        <extracomment>517 use_bridgeway</extracomment>
        <translation>通过 Bridgeway 连接</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications (you will need to restart your computer)</source>
        <extracomment>518 msi_filesinuse_dlg_closenone</extracomment>
        <translation>不关闭应用程序（需要重新启动电脑）(&amp;D)</translation>
    </message>
    <message>
        <source>Larkmoor Drive is ready.</source>
        <extracomment>519 desc_lkmr_env_preparation_done</extracomment>
        <translation>Larkmoor Drive 已就绪。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <extracomment>520 msi_button_no</extracomment>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <extracomment>522 block_file_table_title</extracomment>
        <translation>排除的文件</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>523 history_file</extracomment>
        <translation>文件</translation>
    </message>
</context>
</TS>
