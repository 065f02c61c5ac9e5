<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>外部电源供电</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>正在等待数据</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>电池供电</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>正在充电</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>未在充电</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>已充满</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>已连接电源适配器</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>无外部电源</translation>
    </message>
    <message id="duration.minutes">
        <source>%L1 min</source>
        <translation>%L1 分钟</translation>
    </message>
    <message id="duration.hours_minutes">
        <source>%L1 h %L2 min</source>
        <translation>%L1 小时 %L2 分钟</translation>
    </message>
    <message id="battery.health.good">
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>一般</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>较差</translation>
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
        <translation>电源监视器</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>模拟笔记本 · 非本机</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>模拟台式机 · 非本机</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>实时</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>电池放电</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>系统总功率</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>实时电力流</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>适配器</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Mac 系统</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>电源</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>采样频率</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>未检测到电池</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>这台 Mac 仅使用外部电源。</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>循环次数</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>电流</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>充电状态</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>电池状态</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>充满还需</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>健康度</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1% · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>请在“系统设置 › 登录项”中允许 Ferrow</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>请将 Ferrow 移到“应用程序”文件夹</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>登录时启动</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>在菜单栏显示瓦数</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>打开详细信息</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>图表、电芯和电池历史</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>打开 Ferrow 网站</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>退出 Ferrow</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>显示仪表盘</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>此桌面没有菜单栏区域：仪表盘将以窗口形式打开。</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow（模拟）· %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>设备详细信息</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>功率、电池和电芯一目了然</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>立即读取一次</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>显示或隐藏边栏</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>监视</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>更新于 %1</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>滚动到“%1”</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>功率</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>电量与健康度</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>电芯</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>正在使用外部电源</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>正在充电</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>这台 Mac 没有电池；所有电力都来自其电源。</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>适配器的功率由系统和电池分享。</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>电池为整个系统供电。</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>功率分配</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>芯片功率为空：在这台 Linux 计算机上，只有 root 能读取处理器的能耗计数器。README 的“Chip power on Linux”一节给出了允许读取的 udev 规则。</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>直流输入</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>电池功率</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>功率历史</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>时间范围</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1 分钟</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>正在等待读数</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>图表每秒填充一次。</translation>
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
        <translation>时间</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>瓦特</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>这台 Mac 仅使用外部电源。</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>设计容量</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>满充容量</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>标称满充容量</translation>
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
        <translation>电芯电压</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>无电芯电压</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>此电池不报告其电芯。</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>由电池报告</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>从系统管理控制器读取</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>这台 Mac</translation>
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
        <translation>电池序列号</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>总运行时间</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>全生命周期记录</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1 天 %L2 小时</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>电池最高温度</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>电池最低温度</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>电池平均温度</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>电池组最高电压</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>电池组最低电压</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>最大充电电流</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>最大放电电流</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>安全保护事件</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>电池</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>电量</translation>
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
        <translation>历史记录</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>历史记录已关闭。</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>未在保存历史记录：%1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>尚无历史记录：Ferrow 每分钟记录一次能量。</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow 自 %1 起保存历史记录</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>范围</translation>
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
        <translation>12 个月</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>能量</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>来自电源适配器</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>来自电池</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>此期间没有记录</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>最近的使用时段</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>尚未记录任何使用时段。</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>电池健康度变化</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>健康度（%）</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>充满电容量（mAh）</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>使用电池</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>连接电源适配器</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>使用电池 %1 · 已用 %2</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>连接电源适配器 %1 · 已供电 %2</translation>
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
            <numerusform>%Ln 分钟</numerusform>
        </translation>
    </message>
    <message id="session.hours" numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln 小时</numerusform>
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
        <translation>保留能耗历史</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>关闭能耗历史？</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow 将删除在此电脑上保留的能耗历史。此操作无法撤销。</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>删除历史</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>这台电脑仅使用外部电源。</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>这台电脑没有电池；所有电力都来自其电源。</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>这台电脑</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>不可用</translation>
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
        <translation>%1 摄氏度</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln 毫安时</numerusform>
        </translation>
    </message>
    <message id="accessibility.hertz" numerus="yes">
        <source>%Ln Hz</source>
        <translation>
            <numerusform>%Ln 赫兹</numerusform>
        </translation>
    </message>
    <message id="accessibility.cell">
        <source>Cell %L1</source>
        <translation>电芯 %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>适配器 %1 供给系统 %2</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>电池 %1 供给系统 %2</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>适配器 %1 供给系统 %2 和电池 %3</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>适配器 %1 和电池 %2 供给系统 %3</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>充电器供电不足</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>已连接外部电源，但电池已持续放电 %1：适配器 %2（%3，%4），系统 %5，电池 %6。</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>已连接外部电源，但电池已持续放电 %1：系统 %2，电池 %3。</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>充电缓慢</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>USB-C 电源仅提供 %1，因此电池充电缓慢：适配器 %2，系统 %3，电池 %4。</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>适配器供电低于系统%1的平均功耗，因此电池充电缓慢：适配器 %2，系统 %3。</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>电池过热</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>电池温度为 %1，已达到或超过上限 %2。</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>充电时电池温度达到 %1 或更高，已持续 %2：当前 %3。</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>电池电芯不平衡</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>静置时电芯电压差超过 %1，已持续 %2：当前相差 %3（%4 至 %5）。</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>已达设定电量</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>电池已达到所选电量 %1。</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>%Ln 分钟</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>过去 %Ln 分钟</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1及其他 %Ln 项</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>提醒</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>每条提醒只显示一次，情况持续时最多每 %Ln 分钟重复一次。</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>充电时高于</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>任何时候高于</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>系统设置中已关闭 Ferrow 的通知</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>应用</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>各应用能耗</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>本时段能耗最多的应用</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>自 Ferrow 启动以来耗能最多</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>本时段尚无测量数据</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>尚未测得任何数据</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>时间范围</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>本时段</translation>
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
        <translation>历时 %1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>应用</translation>
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
        <translation>CPU 时间</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>CPU 时间占比</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>按能耗排序</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>按平均功率排序</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow（本应用）</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>自启动以来</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>系统和其他用户</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>其他应用</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>由系统按应用测量</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>估算：处理器的实测能耗，按各应用的 CPU 时间分摊</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>估算：系统实测功率中处理器所占部分，按 CPU 时间分摊</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>仅 CPU 时间：此电脑不测量能耗</translation>
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
        <translation>实测</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>此时段尚无记录</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrow 未保留历史记录，因此只有当前时段有列表。如需保留今后的数据，请在“历史记录”中打开“保留能耗历史”。</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>正在读取…</translation>
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
        <translation>%1 瓦时</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln 毫瓦时</numerusform>
        </translation>
    </message>
</context>
</TS>
