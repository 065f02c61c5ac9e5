<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>外部電源供電</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>正在等待資料</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>電池供電</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>充電中</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>未在充電</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>已充飽</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>已連接電源轉接器</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>無外部電源</translation>
    </message>
    <message id="duration.minutes">
        <source>%L1 min</source>
        <translation>%L1 分鐘</translation>
    </message>
    <message id="duration.hours_minutes">
        <source>%L1 h %L2 min</source>
        <translation>%L1 小時 %L2 分鐘</translation>
    </message>
    <message id="battery.health.good">
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>普通</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>不佳</translation>
    </message>
    <message id="FERROW">
        <source>FERROW</source>
        <translation>FERROW</translation>
    </message>
    <message id="%.1f W">
        <source>%.1f W</source>
        <translation>%.1f W</translation>
    </message>
    <message id="— W">
        <source>— W</source>
        <translation>— W</translation>
    </message>
    <message id="app.menu_subtitle">
        <source>Power monitor</source>
        <translation>電源監控</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>模擬筆電 · 非本機</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>模擬桌上型電腦 · 非本機</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>即時</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>電池放電</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>系統總功率</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>即時電力流向</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>轉接器</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Mac 系統</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>電源</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>取樣頻率</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>電池</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>未偵測到電池</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>這台 Mac 僅使用外部電源。</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>循環次數</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>電流</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>充電狀態</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>電池狀態</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>充飽還需</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>健康度</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>溫度</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1% · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>請在「系統設定 › 登入項目」中允許 Ferrow</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>請將 Ferrow 移到「應用程式」檔案夾</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>登入時啟動</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>在選單列顯示瓦數</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>打開詳細資訊</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>圖表、電芯與電池記錄</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>打開 Ferrow 網站</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>結束 Ferrow</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>顯示儀表板</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>此桌面沒有選單列區域：儀表板會以視窗開啟。</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow（模擬）· %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>裝置詳細資訊</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>功率、電池與電芯一覽</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>重新整理</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>立即讀取一次</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>顯示或隱藏側邊欄</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>監控</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>系統</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>更新於 %1</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>捲動到「%1」</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>概覽</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>功率</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>電量與健康度</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>電芯</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>裝置</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>正在使用外部電源</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>充電中</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>這台 Mac 沒有電池；所有電力都來自其電源供應器。</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>轉接器的功率由系統與電池分享。</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>電池為整個系統供電。</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>功率分配</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>晶片功率為空：在這台 Linux 電腦上，只有 root 能讀取處理器的能耗計數器。README 的「Chip power on Linux」一節提供了允許讀取的 udev 規則。</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>直流輸入</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>電池功率</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>功率記錄</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>時間範圍</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1 分鐘</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>正在等待讀數</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>圖表每秒填入一次。</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>平均</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>峰值</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>瓦特</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>這台 Mac 僅使用外部電源。</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>設計容量</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>滿充容量</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>標稱滿充容量</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln 次</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>電芯電壓</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>沒有電芯電壓</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>此電池不回報其電芯。</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>由電池回報</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>從系統管理控制器讀取</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>這台 Mac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>每秒一次</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>GPU 功率</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>電池序號</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>總運作時間</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>完整使用記錄</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1 天 %L2 小時</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>電池最高溫度</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>電池最低溫度</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>電池平均溫度</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>電池組最高電壓</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>電池組最低電壓</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>最大充電電流</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>最大放電電流</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>安全保護事件</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>電池</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>電量</translation>
    </message>
    <message id="power.usb_c_contract">
        <source>USB-C %1 V · %2 A</source>
        <translation>USB-C %1 V · %2 A</translation>
    </message>
    <message id="power.usb_c_voltage">
        <source>USB-C %1 V</source>
        <translation>USB-C %1 V</translation>
    </message>
    <message id="section.energy_history">
        <source>History</source>
        <translation>歷史記錄</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>歷史記錄已關閉。</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>未在保存歷史記錄：%1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>尚無歷史記錄：Ferrow 每分鐘記錄一次能量。</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow 自 %1 起保存歷史記錄</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>範圍</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7 天</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30 天</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12 個月</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>能量</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>來自電源轉接器</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>來自電池</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>此期間沒有記錄</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>最近的使用時段</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>尚未記錄任何使用時段。</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>電池健康度變化</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>健康度（%）</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>充滿電容量（mAh）</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>使用電池</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>連接電源轉接器</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>使用電池 %1 · 已用 %2</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>連接電源轉接器 %1 · 已供電 %2</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>平均 %1 · 峰值 %2</translation>
    </message>
    <message id="session.two_units">
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message id="session.minutes" numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln 分鐘</numerusform>
        </translation>
    </message>
    <message id="session.hours" numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln 小時</numerusform>
        </translation>
    </message>
    <message id="session.days" numerus="yes">
        <source>%Ln d</source>
        <translation>
            <numerusform>%Ln 天</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>保留能耗歷史</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>關閉能耗歷史？</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow 將刪除在此電腦上保留的能耗歷史。此操作無法復原。</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>刪除歷史</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>系統</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>這台電腦僅使用外部電源。</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>這台電腦沒有電池；所有電力都來自其電源供應器。</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>這台電腦</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>無法使用</translation>
    </message>
    <message id="accessibility.reading">
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message id="accessibility.note">
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
    <message id="accessibility.watts">
        <source>%1 watts</source>
        <translation>%1 瓦特</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1 伏特</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1 安培</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>%1 攝氏度</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln 毫安培小時</numerusform>
        </translation>
    </message>
    <message id="accessibility.hertz" numerus="yes">
        <source>%Ln Hz</source>
        <translation>
            <numerusform>%Ln 赫茲</numerusform>
        </translation>
    </message>
    <message id="accessibility.cell">
        <source>Cell %L1</source>
        <translation>電芯 %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>轉接器 %1 供給系統 %2</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>電池 %1 供給系統 %2</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>轉接器 %1 供給系統 %2 和電池 %3</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>轉接器 %1 和電池 %2 供給系統 %3</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>充電器供電不足</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>已連接外部電源，但電池已持續放電 %1：轉接器 %2（%3，%4），系統 %5，電池 %6。</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>已連接外部電源，但電池已持續放電 %1：系統 %2，電池 %3。</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>充電緩慢</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>USB-C 電源僅提供 %1，因此電池充電緩慢：轉接器 %2，系統 %3，電池 %4。</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>轉接器供電低於系統%1的平均功耗，因此電池充電緩慢：轉接器 %2，系統 %3。</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>電池過熱</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>電池溫度為 %1，已達到或超過上限 %2。</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>充電時電池溫度達到 %1 或更高，已持續 %2：目前 %3。</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>電池電芯不平衡</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>靜置時電芯電壓差超過 %1，已持續 %2：目前相差 %3（%4 至 %5）。</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>已達設定電量</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>電池已達到所選電量 %1。</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>%Ln 分鐘</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>過去 %Ln 分鐘</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1及其他 %Ln 項</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>提醒</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>每則提醒只顯示一次，狀況持續時最多每 %Ln 分鐘重複一次。</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>充電時高於</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>任何時候高於</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>系統設定中已關閉 Ferrow 的通知</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>應用程式</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>各應用程式能耗</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>本時段能耗最多的應用程式</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>自 Ferrow 啟動以來耗能最多</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>本時段尚無測量資料</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>尚未測得任何資料</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>時間範圍</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>本時段</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7 天</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30 天</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>歷時 %1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>應用程式</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>能耗</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>平均功率</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>占比</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>CPU 時間</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>CPU 時間占比</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>依能耗排序</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>依平均功率排序</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow（本應用程式）</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>自啟動以來</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>系統和其他使用者</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>其他應用程式</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>由系統依應用程式測量</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>估算：處理器的實測能耗，依各應用程式的 CPU 時間分攤</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>估算：系統實測功率中處理器所占部分，依 CPU 時間分攤</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>僅 CPU 時間：此電腦不測量能耗</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 表示估算值</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>估算</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>實測</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>此時段尚無記錄</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrow 未保留歷史記錄，因此只有目前時段有列表。如需保留往後的資料，請在「歷史記錄」中開啟「保留能耗歷史」。</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>正在讀取…</translation>
    </message>
    <message id="apps.seconds" numerus="yes">
        <source>%Ln s</source>
        <translation>
            <numerusform>%Ln 秒</numerusform>
        </translation>
    </message>
    <message id="accessibility.percent">
        <source>%1 percent</source>
        <translation>百分之%1</translation>
    </message>
    <message id="accessibility.watt_hours">
        <source>%1 watt-hours</source>
        <translation>%1 瓦時</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln 毫瓦時</numerusform>
        </translation>
    </message>
</context>
</TS>
