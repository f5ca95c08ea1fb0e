<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>DeviceTreeModel</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FeatureSource</name>
    <message>
        <source>No camera was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of the cameras found can be used: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no camera &apos;%1&apos;. Found: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>somebody else has it open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it did not answer in time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its address does not fit the network adapter&apos;s subnet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its description cannot be understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it refuses access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error code %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera system cannot be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera &apos;%1&apos; cannot be opened: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GenParamDelegate</name>
    <message>
        <source>True</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>False</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GenParamTreeModel</name>
    <message>
        <source>&lt;Value not available&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;Value not readable&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Execute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Float</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>String</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;i&gt;Limits&lt;/i&gt;: Min: %1, Max: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;i&gt;Increment&lt;/i&gt;: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;i&gt;Valid values&lt;/i&gt;: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;i&gt;Enumeration entries&lt;/i&gt;:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2 (0x%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;i&gt;Name:&lt;/i&gt; %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;i&gt;Type:&lt;/i&gt; %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;i&gt;Selectors:&lt;/i&gt; %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;i&gt;Description:&lt;/i&gt; %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>True</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>False</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;i&gt;Streamable:&lt;/i&gt; %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GenParamTreeView</name>
    <message>
        <source>GenParamTreeView</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visibility:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Basic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guru</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InfoPane</name>
    <message>
        <source>Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Use simulated cameras; nothing is sent anywhere.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the camera of this identifier, serial number or name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a GenICam description without a camera; its registers live in memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the features as the tree shows them and exit: two blanks of indentation per level, the name, a tab, the value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The level of detail: basic, expert or guru.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a picture of the window and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows and changes the features of a camera.
Exit status: 0 success, 1 failure, 2 wrong usage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no option &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no visibility &apos;%1&apos;; use basic, expert or guru.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A description is shown without a camera: use --xml alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say what to show: --simulate, --camera ID or --xml FILE.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrvCameraSelectorDialog</name>
    <message>
        <source>Select camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Interface info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Device info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCameraSelectorDialog</name>
    <message>
        <source>Set IP address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ReadWrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ReadOnly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NO ACCESS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP Subnet Mismatch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>USB3 Vision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GigE Vision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CameraLink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CoaXPress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HD-SDI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t set IP address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP Configuration Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specified IP Configuraion is not correct, camera may become undiscoverable
Press OK to skip the IP Configuration, or press Ignore to confirm</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The output failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture &apos;%1&apos; cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QtOrvSpinBox</name>
    <message>
        <source>Show a slider</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetIpDialog</name>
    <message>
        <source>Set IP Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network Adapter IP Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subnet Mask       </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera IP Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP &amp;Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Subnet Mask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default &amp;Gateway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subnet mask mismatch!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subnet IP mismatch!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incorrect IP address!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP Configuration OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
